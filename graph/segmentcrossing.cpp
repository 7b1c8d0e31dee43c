// SPDX-License-Identifier: MIT
#include "graph/segmentcrossing.h"

#include <cmath>
#include <limits>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

namespace {

const float BoxSnap = 5e-5f;         // scene units
const double ParallelDegrees = 1e-5; // angle below which lines count as parallel
const double RadiansPerDegree = 0.017453292519943295;
const double MinimumLength = 1e-12; // of a segment in its unit frame

double parallelEpsilon()
{
    const double sine = std::sin(ParallelDegrees * RadiansPerDegree);
    return sine * sine;
}

float snapped(float coordinate)
{
    return std::fabs(coordinate) < BoxSnap ? 0.0f : coordinate;
}

Vector snapped(const Vector &v)
{
    return {snapped(v.x), snapped(v.y), snapped(v.z)};
}

// A single-precision number is below the answer exactly when it is below the limit.
float floatLimit(double limit)
{
    const float nearest = float(limit);
    const bool isBelow = double(nearest) < limit;
    return isBelow ? std::nextafter(nearest, std::numeric_limits<float>::infinity()) : nearest;
}

} // namespace

AxisAlignedBoundingBox snappedBox(const AxisAlignedBoundingBox &box)
{
    AxisAlignedBoundingBox result;
    result.minimum = snapped(box.minimum);
    result.maximum = snapped(box.maximum);
    return result;
}

bool boxesOverlap(const AxisAlignedBoundingBox &a, const AxisAlignedBoundingBox &b)
{
    return snappedBoxesOverlap(snappedBox(a), snappedBox(b));
}

void closestPointOnLine(const Line &a, const Line &b, double epsilon, Vector &point, bool &found)
{
    const crossinglane::ClosestPoint closest =
        crossinglane::closestPoint(a.point, a.direction, b.point, b.direction, floatLimit(epsilon));
    point = closest.point;
    found = closest.isFound;
}

const crossinglane::Limits &crossingLimits()
{
    static const crossinglane::Limits limits = {floatLimit(parallelEpsilon()),
                                                floatLimit(MinimumLength)};
    return limits;
}

bool segmentsCross(const Vector &a0, const Vector &a1, const Vector &b0, const Vector &b1,
                   Vector &point, float &ta, float &tb)
{
    const crossinglane::Answer answer = crossinglane::cross(a0, a1, b0, b1, crossingLimits());
    ta = answer.ta;
    tb = answer.tb;
    if (!answer.isCrossing())
        return false;
    point = answer.place;
    return true;
}
