// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace orvane {

//! The icon "Icons/desktop/<name>.png" of the working directory, sharp on dense screens too.
QIcon desktopIcon(const QString &name);

} // namespace orvane
