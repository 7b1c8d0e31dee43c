// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/axisalignedboundingbox.h>
#include <orvane/math/vector.h>

#include <cmath>
#include <limits>

// The crossing of two segments without a branch, so that a compiler can work on several pairs at
// once. What a pair does not need is computed and left unused: the results are those that branches
// would give, bit for bit.
namespace crossinglane {

//! Where two lines are closest.
struct ClosestPoint
{
    orvane::Vector point;
    bool isFound;
};

struct Answer
{
    orvane::Vector place; // in scene units
    float ta;             // fractions, both -1 for parallel lines
    float tb;

    //! Strict on both ends: a crossing at a sample belongs to neither segment, so none counts
    //! twice.
    bool isCrossing() const { return 0.0f < ta && ta < 1.0f && 0.0f < tb && tb < 1.0f; }
};

//! Below these a number counts as nothing.
struct Limits
{
    float parallel; // squared sine of the angle of two lines
    float length;   // of a segment in its unit frame
};

inline orvane::Vector choose(bool first, const orvane::Vector &a, const orvane::Vector &b)
{
    return {first ? a.x : b.x, first ? a.y : b.y, first ? a.z : b.z};
}

inline orvane::Vector normalized(const orvane::Vector &v)
{
    const float length = v.Length();
    return choose(length > 0.0f, v / length, v);
}

//! Lines through pa and pb along da and db. The point of the second closest to the first;
//! epsilon as in closestPointOnLine.
inline ClosestPoint closestPoint(const orvane::Vector &pa, const orvane::Vector &da,
                                 const orvane::Vector &pb, const orvane::Vector &db, float epsilon)
{
    const orvane::Vector c = da & db;
    const bool isParallel = c.LengthSquared() < epsilon;
    // The plane that holds the first line and the common perpendicular; the second pierces it.
    const orvane::Vector n = normalized(c & da);
    const float den = Dot(n, db);
    const float t = -(Dot(n, pb) - Dot(n, pa)) / den;
    const bool isFlat = std::fabs(den) < epsilon;
    return {choose(isParallel, pa, choose(isFlat, pb, pb + db * t)), !isParallel};
}

//! Where along p0-p1 the point lies, as a fraction of its length; 0 below the minimum length.
inline float fractionAlong(const orvane::Vector &point, const orvane::Vector &p0,
                           const orvane::Vector &p1, float minimumLength)
{
    const orvane::Vector d = p1 - p0;
    const float fraction = Dot(point - p0, d) / d.LengthSquared();
    return d.Length() < minimumLength ? 0.0f : fraction;
}

inline float lower(float so, float next)
{
    return next < so ? next : so;
}

inline float higher(float so, float next)
{
    return next > so ? next : so;
}

inline float least(float a, float b, float c, float d)
{
    return lower(lower(lower(lower(std::numeric_limits<float>::infinity(), a), b), c), d);
}

inline float greatest(float a, float b, float c, float d)
{
    return higher(higher(higher(higher(-std::numeric_limits<float>::infinity(), a), b), c), d);
}

//! Segments a0-a1 and b0-b1, in a unit-sized frame about the origin: it keeps the fixed limits
//! meaningful at any scale.
inline Answer cross(const orvane::Vector &a0, const orvane::Vector &a1, const orvane::Vector &b0,
                    const orvane::Vector &b1, const Limits &limits)
{
    const orvane::Vector minimum(least(a0.x, a1.x, b0.x, b1.x), least(a0.y, a1.y, b0.y, b1.y),
                                 least(a0.z, a1.z, b0.z, b1.z));
    const orvane::Vector maximum(greatest(a0.x, a1.x, b0.x, b1.x), greatest(a0.y, a1.y, b0.y, b1.y),
                                 greatest(a0.z, a1.z, b0.z, b1.z));
    const orvane::Vector center = (minimum + maximum) * 0.5f;
    const float length = (maximum - minimum).Length();
    const float halfDiagonal = 0.5f * (minimum.x <= maximum.x ? length : 0.0f);
    const float scale = 1.0f / halfDiagonal;
    const orvane::Vector ua0 = (a0 - center) * scale;
    const orvane::Vector ua1 = (a1 - center) * scale;
    const orvane::Vector ub0 = (b0 - center) * scale;
    const orvane::Vector ub1 = (b1 - center) * scale;

    const ClosestPoint x =
        closestPoint(ua0, normalized(ua1 - ua0), ub0, normalized(ub1 - ub0), limits.parallel);
    const float ta = fractionAlong(x.point, ua0, ua1, limits.length);
    const float tb = fractionAlong(x.point, ub0, ub1, limits.length);
    return {x.point * halfDiagonal + center, x.isFound ? ta : -1.0f, x.isFound ? tb : -1.0f};
}

} // namespace crossinglane
