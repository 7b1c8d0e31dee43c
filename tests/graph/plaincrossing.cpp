// SPDX-License-Identifier: MIT
#include "tests/graph/plaincrossing.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <cmath>
#include <initializer_list>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

namespace {

const double ParallelDegrees = 1e-5; // angle below which lines count as parallel
const double RadiansPerDegree = 0.017453292519943295;
const double MinimumLength = 1e-12; // of a segment in its unit frame

double parallelEpsilon()
{
    const double sine = std::sin(ParallelDegrees * RadiansPerDegree);
    return sine * sine;
}

// Where along p0-p1 the point lies, as a fraction of its length.
float fractionAlong(const Vector &point, const Vector &p0, const Vector &p1)
{
    const Vector d = p1 - p0;
    if (double(d.Length()) < MinimumLength)
        return 0.0f;
    return Dot(point - p0, d) / d.LengthSquared();
}

bool isInside(float fraction)
{
    return 0.0f < fraction && fraction < 1.0f;
}

struct Line
{
    Vector point;
    Vector direction;
};

void closestPointOnLine(const Line &a, const Line &b, double epsilon, Vector &point, bool &found)
{
    const Vector c = a.direction & b.direction;
    if (epsilon > double(c.LengthSquared())) {
        found = false;
        point = a.point;
        return;
    }
    found = true;
    // The plane that holds line a and the common perpendicular; line b pierces it.
    const Vector n = Normalized(c & a.direction);
    const float den = Dot(n, b.direction);
    if (epsilon > double(std::fabs(den))) {
        point = b.point;
        return;
    }
    const float t = -(Dot(n, b.point) - Dot(n, a.point)) / den;
    point = b.point + b.direction * t;
}

} // namespace

bool plainSegmentsCross(const Vector &a0, const Vector &a1, const Vector &b0, const Vector &b1,
                        Vector &point, float &ta, float &tb)
{
    static const double Epsilon = parallelEpsilon();

    // A unit-sized frame about the origin keeps the fixed epsilons meaningful at any scale.
    AxisAlignedBoundingBox box;
    for (const Vector *p : {&a0, &a1, &b0, &b1})
        box.Extend(*p);
    const Vector center = box.Center();
    const float halfDiagonal = 0.5f * box.Diagonal();
    const float scale = 1.0f / halfDiagonal;
    const Vector ua0 = (a0 - center) * scale;
    const Vector ua1 = (a1 - center) * scale;
    const Vector ub0 = (b0 - center) * scale;
    const Vector ub1 = (b1 - center) * scale;

    bool found = false;
    Vector x;
    closestPointOnLine({ua0, Normalized(ua1 - ua0)}, {ub0, Normalized(ub1 - ub0)}, Epsilon, x,
                       found);
    ta = tb = -1.0f;
    if (!found)
        return false;
    ta = fractionAlong(x, ua0, ua1);
    tb = fractionAlong(x, ub0, ub1);
    // Strict on both ends: a crossing at a sample belongs to neither segment, so none counts twice.
    if (!isInside(ta) || !isInside(tb))
        return false;
    point = x * halfDiagonal + center;
    return true;
}
