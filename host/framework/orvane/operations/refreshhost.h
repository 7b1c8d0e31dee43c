// SPDX-License-Identifier: MIT
#pragma once

namespace orvane {

//! Asks the view for a repaint and the interface for up-to-date lists: the scene has changed.
void refreshHost();

} // namespace orvane
