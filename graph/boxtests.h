// SPDX-License-Identifier: MIT
#pragma once

#include "graph/lanes.h"

#include <orvane/math/axisalignedboundingbox.h>

//! Boxes as the processor likes them: a column for each side. Every column can be read up to
//! BoxLanes numbers past its last box.
struct BoxColumns
{
    const float *minimum[3]; // x, y, z
    const float *maximum[3];
};

const int BoxLanes = 16; // most boxes that one instruction looks at

//! Writes down, ascending, the numbers of those boxes of [first, last) that overlap the box, and
//! answers how many they are. hits has room for last - first + BoxLanes numbers. All boxes are
//! snapped.
using BoxTest = int (*)(const BoxColumns &boxes, int first, int last,
                        const orvane::AxisAlignedBoundingBox &box, int *hits);

//! Looks at so many boxes at once; the processor must have the lanes. All give the same answers.
BoxTest boxTest(Lanes lanes);
