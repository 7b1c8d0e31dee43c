// SPDX-License-Identifier: MIT
#pragma once

//! Where two curves meet, or one meets itself: their numbers, the first not above the second, and
//! the place on each as a parameter, the index of the segment's first sample plus the fraction
//! along that segment.
struct Crossing
{
    int curveA;
    float parameterA;
    int curveB;
    float parameterB;
};
