// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"

//! `quillmesh check` and `quillmesh picture`: each prints what it has to say and answers the exit
//! code.
int runCheck(const QString &meshFile);
int runPicture(const PictureOptions &options);
