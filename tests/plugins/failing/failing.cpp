// SPDX-License-Identifier: MIT
// Its initialiser adds a menu entry and then gives up.
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>

#include <stdexcept>

namespace {

void initialise()
{
    orvane::Kernel()->Interface()->AddCallbackMenuItem(
        orvane::Interface::menuMesh, QString(), QStringLiteral("Left Behind"),
        [] { orvane::Kernel()->Log(QStringLiteral("Still here.")); }, QStringLiteral("failing"),
        901, false, 1);
    throw std::runtime_error("no licence to be found");
}

const orvane::Plugin Record("Failing", "Fails", "", "", "", initialise);

} // namespace
