// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! Path of a real mesh or curve file that tests may use; empty where the folder is not at hand
//! (environment variable QUILLMESH_MODELS), and the test then skips with a plain message.
QString modelFile(const QString &name);
