// SPDX-License-Identifier: MIT
// Claims the name of the plug-in in minimal/.
#include <orvane/base/log.h>
#include <orvane/kernel/plugin.h>

namespace {

void initialise()
{
    orvane::log(QStringLiteral("The twin was initialised."));
}

const orvane::Plugin Record("Minimal", "Twin", "", "", "", initialise);

} // namespace
