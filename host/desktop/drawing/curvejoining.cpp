// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curvejoining.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/surfacepath.h"

#include <algorithm>

namespace orvane {

namespace {

const float FollowStep = 0.25f; // fraction of the spacing
const float TouchingGap = 0.5f; // fraction of the spacing

using Points = QVector<CurvePoint>;

float gap(const CurvePoint &a, const CurvePoint &b)
{
    return (b.position - a.position).Length();
}

Points turned(Points points)
{
    std::reverse(points.begin(), points.end());
    return points;
}

float meanStretch(const Points &points)
{
    return points.size() < 2 ? 0.0f : float(lengthOf(placesOf(points)) / (points.size() - 1));
}

// What belongs between two points, both left out.
Points bridge(const CurvePoint &from, const CurvePoint &to, float spacing,
              const SurfaceLocator &surface)
{
    if (!(spacing > 0.0f) || gap(from, to) <= spacing)
        return {};
    const QVector<QVector<Vector>> ways =
        followSurface({from.position, to.position}, spacing * FollowStep, surface);
    if (ways.size() != 1)
        return {};
    const Points even = evenlySpaced(ways.first(), false, spacing, surface).points;
    return even.mid(1, qMax(0, even.size() - 2));
}

// From the end of one to the beginning of the other.
Points chained(const Points &first, Points second, const SurfaceLocator &surface)
{
    const float spacing = meanStretch(first);
    while (second.size() > 1 && gap(first.last(), second.first()) <= TouchingGap * spacing)
        second.removeFirst();
    return first + bridge(first.last(), second.first(), spacing, surface) + second;
}

bool hasEnds(const CurveShape &shape)
{
    return !shape.closed && !shape.points.isEmpty();
}

} // namespace

CurveShape joined(const CurveShape &first, const CurveShape &second, const SurfaceLocator &surface)
{
    if (!hasEnds(first) || !hasEnds(second))
        return first;
    const Points &a = first.points;
    const Points &b = second.points;
    const float nearestToEnd = qMin(gap(a.last(), b.first()), gap(a.last(), b.last()));
    const float nearestToStart = qMin(gap(a.first(), b.first()), gap(a.first(), b.last()));
    const CurvePoint end = nearestToEnd <= nearestToStart ? a.last() : a.first();
    const bool turns = gap(end, b.last()) < gap(end, b.first());
    return extended(first, {turns ? turned(b) : b, false}, surface);
}

CurveShape extended(const CurveShape &shape, const CurveShape &stroke,
                    const SurfaceLocator &surface)
{
    if (!hasEnds(shape) || !hasEnds(stroke))
        return shape;
    const Points &points = shape.points;
    const CurvePoint start = stroke.points.first();
    if (gap(points.last(), start) <= gap(points.first(), start))
        return {chained(points, stroke.points, surface), false};
    return {turned(chained(turned(points), stroke.points, surface)), false};
}

CurveShape closed(const CurveShape &shape, const SurfaceLocator &surface)
{
    if (shape.closed || shape.points.size() < 3)
        return shape;
    Points points = shape.points;
    const float spacing = meanStretch(points);
    while (points.size() > 3 && gap(points.last(), points.first()) <= TouchingGap * spacing)
        points.removeLast();
    points += bridge(points.last(), points.first(), spacing, surface);
    return closedThrough(points, surface);
}

} // namespace orvane
