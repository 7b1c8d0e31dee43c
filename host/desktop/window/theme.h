// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace orvane {

enum class Theme {
    System, //!< as the desktop around it is
    Light,
    Dark
};

//! The colours of a theme; those of the system for System, but for texts that could not be read.
QPalette paletteOf(Theme theme);
//! Gives the whole application the look of a theme, windows that are open too.
void applyTheme(Theme theme);
//! How well two colours can be told apart: (L1 + 0.05) / (L2 + 0.05) of their relative luminances
//! of sRGB; 1 to 21. Text needs 4.5.
double contrast(const QColor &a, const QColor &b);

} // namespace orvane
