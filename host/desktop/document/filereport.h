// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/curvebinding.h"

#include <QStringList>

namespace orvane {

//! What came of opening or importing files.
struct FileReport
{
    bool done = false;    // false: the scene is as it was
    QStringList problems; // a sentence each: why it was not done, or what had to be left out
    QStringList notes;    // a sentence each about what was done, for the user
    int meshes = 0;       // that came in
    int curves = 0;       // that came in
    CurveBinding binding; // of those curves
};

} // namespace orvane
