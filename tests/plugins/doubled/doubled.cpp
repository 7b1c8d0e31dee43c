// SPDX-License-Identifier: MIT
// Two records in one library.
#include <orvane/base/log.h>
#include <orvane/kernel/plugin.h>

namespace {

void initialise()
{
    orvane::log(QStringLiteral("A doubled plug-in was initialised."));
}

const orvane::Plugin First("Doubled", "First of two", "", "", "", initialise);
const orvane::Plugin Second("Doubled again", "Second of two", "", "", "", initialise);

} // namespace
