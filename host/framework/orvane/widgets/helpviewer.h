// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>

namespace orvane {

//! Shows the page "Help/<identifier>.md" of the working directory in the host's help window, of
//! which there is one; "Help/<language>/<identifier>.md" goes first when there is one. A page that
//! is missing, or an identifier that could name a file elsewhere, shows a text that says so and is
//! logged.
ORVANE_EXPORT void showHelp(const QString &identifier);

} // namespace orvane
