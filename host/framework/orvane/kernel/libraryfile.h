// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvane {

//! Does the library lack bytes that its own tables promise, as after a copy that was cut short?
//! The system's loader maps them unseen, and touching them ends the process. False for what is no
//! library of this machine's format: the loader refuses that by itself.
bool isCutOff(const QString &libraryFile);

} // namespace orvane
