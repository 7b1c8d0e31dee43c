// SPDX-License-Identifier: MIT
// Compiled as if with the headers of another framework version: see the build file.
#include <orvane/base/log.h>
#include <orvane/kernel/plugin.h>

namespace {

void initialise()
{
    orvane::log(QStringLiteral("A plug-in of another version was initialised."));
}

const orvane::Plugin Record("Minimal", "Of another time", "", "", "", initialise);

} // namespace
