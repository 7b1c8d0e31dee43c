// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

//! A place where one curve passes exactly through a stored point of another, or through one of its
//! own: by rule no crossing.
struct PointOnCurve
{
    int curveA = 0; // indices into the input curves, a not above b
    int curveB = 0;
    orvane::Vector place; // world space
};
