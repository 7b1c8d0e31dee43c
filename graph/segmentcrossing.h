// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossinglane.h"

#include <orvane/math/axisalignedboundingbox.h>
#include <orvane/math/vector.h>

//! A line by a point on it and its direction.
struct Line
{
    orvane::Vector point;
    orvane::Vector direction;
};

//! The box with every coordinate nearer to 0 than 5e-5 read as 0. Never reverses an order, so
//! boxes may be snapped once, when they are made.
orvane::AxisAlignedBoundingBox snappedBox(const orvane::AxisAlignedBoundingBox &box);

//! Do two boxes, both snapped already, overlap? Touching ones do; empty ones never.
inline bool snappedBoxesOverlap(const orvane::AxisAlignedBoundingBox &a,
                                const orvane::AxisAlignedBoundingBox &b)
{
    return a.minimum.x <= b.maximum.x && b.minimum.x <= a.maximum.x && a.minimum.y <= b.maximum.y
           && b.minimum.y <= a.maximum.y && a.minimum.z <= b.maximum.z
           && b.minimum.z <= a.maximum.z;
}

//! Do two boxes overlap, coordinates near 0 snapped to it first?
bool boxesOverlap(const orvane::AxisAlignedBoundingBox &a, const orvane::AxisAlignedBoundingBox &b);

//! The point of line b closest to line a; directions of length 1. found is false, and the point
//! a's own, where the lines count as parallel: epsilon above the squared sine of their angle.
void closestPointOnLine(const Line &a, const Line &b, double epsilon, orvane::Vector &point,
                        bool &found);

//! Do segments a0-a1 and b0-b1 cross, seen along their common perpendicular?
//! On true: point in scene units, ta and tb as fractions in the open interval (0, 1).
//! False for parallel lines and for a crossing exactly at an end. The gap between the two
//! segments is not judged here; the grown boxes have done that.
//! On false ta and tb are the fractions all the same, or both -1 for parallel lines.
bool segmentsCross(const orvane::Vector &a0, const orvane::Vector &a1, const orvane::Vector &b0,
                   const orvane::Vector &b1, orvane::Vector &point, float &ta, float &tb);

//! What segmentsCross goes by.
const crossinglane::Limits &crossingLimits();
