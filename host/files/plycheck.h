// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace orvane {

//! Does the PLY file hold all that its header promises? assimp takes what is missing for granted.
//! False, and what is wrong in which place in *error, when it does not.
bool checkPly(const QByteArray &bytes, QString *error);

} // namespace orvane
