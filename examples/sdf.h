// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include <orvane/math/vector.h>

//! Distances to simple solids and the blends between them, scene units, negative inside.
//! Ellipsoids and tapered rods are not exact, but right to first order at their surface.
//! The blends are the polynomial ones of I. Quilez, "Smooth minimum", 2013.
namespace sdf {

inline float clamp01(float t)
{
    return std::min(std::max(t, 0.0f), 1.0f);
}

inline float smoothStep(float from, float to, float value)
{
    const float t = clamp01((value - from) / (to - from));
    return t * t * (3.0f - 2.0f * t);
}

inline orvane::Vector scaled(const orvane::Vector &a, const orvane::Vector &b)
{
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}

//! The same point on the side of x >= 0: one description serves both halves.
inline orvane::Vector mirrored(const orvane::Vector &p)
{
    return {std::abs(p.x), p.y, p.z};
}

//! Turned about the x axis: y goes towards z.
inline orvane::Vector pitched(const orvane::Vector &p, float radians)
{
    const float c = std::cos(radians);
    const float s = std::sin(radians);
    return {p.x, c * p.y - s * p.z, s * p.y + c * p.z};
}

//! Turned about the y axis: z goes towards x.
inline orvane::Vector yawed(const orvane::Vector &p, float radians)
{
    const float c = std::cos(radians);
    const float s = std::sin(radians);
    return {c * p.x + s * p.z, p.y, c * p.z - s * p.x};
}

//! Turned about the z axis: x goes towards y.
inline orvane::Vector rolled(const orvane::Vector &p, float radians)
{
    const float c = std::cos(radians);
    const float s = std::sin(radians);
    return {c * p.x - s * p.y, s * p.x + c * p.y, p.z};
}

inline float sphere(const orvane::Vector &p, float radius)
{
    return p.Length() - radius;
}

inline float ellipsoid(const orvane::Vector &p, const orvane::Vector &radii)
{
    const orvane::Vector inverse(1.0f / radii.x, 1.0f / radii.y, 1.0f / radii.z);
    const orvane::Vector q = scaled(p, inverse);
    const float slope = scaled(q, inverse).Length();
    const float k = q.Length();
    return slope > 0.0f ? k * (k - 1.0f) / slope : -std::min({radii.x, radii.y, radii.z});
}

//! A rod from a to b whose radius goes from ra to rb.
inline float rod(const orvane::Vector &p, const orvane::Vector &a, const orvane::Vector &b,
                 float ra, float rb)
{
    const orvane::Vector along = b - a;
    const float t = clamp01(Dot(p - a, along) / along.LengthSquared());
    return (p - a - along * t).Length() - (ra + (rb - ra) * t);
}

//! Union with a fillet about `blend` wide.
inline float join(float a, float b, float blend)
{
    const float h = std::max(blend - std::abs(a - b), 0.0f) / blend;
    return std::min(a, b) - h * h * blend * 0.25f;
}

//! What a and b share, with a rounded edge about `blend` wide.
inline float common(float a, float b, float blend)
{
    return -join(-a, -b, blend);
}

//! Takes b away from a, with a rounded edge about `blend` wide.
inline float carve(float a, float b, float blend)
{
    return common(a, -b, blend);
}

} // namespace sdf
