// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace orvane {

//! How what is in hand is drawn.
inline QColor strokeColour()
{
    return {255, 150, 40};
}
//! What comes of it by itself: closing, partner across the mirror, proposal.
inline QColor companionColour()
{
    return {90, 220, 130};
}
inline QColor removalColour()
{
    return {235, 60, 60};
}

} // namespace orvane
