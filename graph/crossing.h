// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QTypeInfo>

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

//! The two segments that meet in a crossing, by the number of their first sample, and where, in
//! world space.
struct SegmentMeeting
{
    int a;
    int b;
    orvane::Vector place;
};

// Lists of millions of them grow as bytes.
Q_DECLARE_TYPEINFO(Crossing, Q_PRIMITIVE_TYPE);
Q_DECLARE_TYPEINFO(SegmentMeeting, Q_PRIMITIVE_TYPE);
