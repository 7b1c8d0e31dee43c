// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacepoint.h>
#include <orvane/math/vector.h>

namespace orvane {

//! A point of a curve: where it is, and where on a surface it lies.
struct CurvePoint
{
    CurvePoint() = default;
    explicit CurvePoint(const Vector &world) : position(world) {}
    explicit CurvePoint(const SurfacePoint &point)
        : position(point.WorldPosition()), surfacePoint(point)
    {}

    Vector position; // world space
    SurfacePoint surfacePoint;
};

} // namespace orvane
