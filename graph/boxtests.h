// SPDX-License-Identifier: MIT
#pragma once

#include "graph/lanes.h"

#include <orvane/math/axisalignedboundingbox.h>

const int BoxLanes = 16; // most boxes that one instruction looks at

//! A few boxes as the processor likes them: side by side in memory, a row for each of their sides.
struct alignas(64) BoxBlock
{
    float minimum[3][BoxLanes]; // x, y, z
    float maximum[3][BoxLanes];
};

//! Boxes that follow each other, by number.
struct BoxSpan
{
    int first;
    int last; // one past
};

//! Writes down, span by span and ascending within each, the numbers of those boxes that overlap
//! the box, and answers how many they are. hits has room for all boxes of the spans and BoxLanes
//! numbers more. All boxes are snapped; box i is the one at i % BoxLanes of block i / BoxLanes.
using BoxTest = int (*)(const BoxBlock *blocks, const BoxSpan *spans, int spanCount,
                        const orvane::AxisAlignedBoundingBox &box, int *hits);

//! Looks at so many boxes at once; the processor must have the lanes. All give the same answers.
BoxTest boxTest(Lanes lanes);
