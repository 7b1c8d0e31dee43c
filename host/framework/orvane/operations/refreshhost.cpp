// SPDX-License-Identifier: MIT
#include <orvane/operations/refreshhost.h>

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/viewport.h>

namespace orvane {

void refreshHost()
{
    Kernel()->ViewPort()->Redraw(RedrawAll, 0.0f, 0.0f, 0.0f, 0.0f);
    Kernel()->Interface()->RefreshUI();
}

} // namespace orvane
