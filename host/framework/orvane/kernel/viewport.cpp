// SPDX-License-Identifier: MIT
#include <orvane/kernel/viewport.h>

namespace orvane {

void ViewPort::Redraw(RedrawType, float, float, float, float) {}

} // namespace orvane
