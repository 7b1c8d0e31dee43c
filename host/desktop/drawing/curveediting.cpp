// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curveediting.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/surfacepath.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const float FollowStep = 0.25f; // fraction of the spacing

// One at the moved point, nothing at reach, level at both.
float falloff(double distance, float reach)
{
    if (!(distance < double(reach)))
        return 0.0f;
    const float share = float(distance / double(reach));
    const float rest = 1.0f - share * share;
    return rest * rest;
}

QVector<CurvePoint> smoothedOnce(const QVector<CurvePoint> &points, bool closed,
                                 const SurfaceLocator &surface)
{
    const int count = points.size();
    QVector<CurvePoint> result = points;
    for (int i = closed ? 0 : 1; i < (closed ? count : count - 1); ++i) {
        const Vector before = points[(i + count - 1) % count].position;
        const Vector after = points[(i + 1) % count].position;
        result[i] = onSurface(surface, points[i].position * 0.5f + (before + after) * 0.25f);
    }
    return result;
}

} // namespace

CurveShape smoothed(const CurveShape &shape, int steps, const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    if (points.size() < 3)
        return shape;
    for (int i = 0; i < steps; ++i)
        points = smoothedOnce(points, shape.closed, surface);
    return likeBefore(shape, points, surface);
}

CurveShape moved(const CurveShape &shape, int index, const Vector &offset, float reach,
                 const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    if (index < 0 || index >= points.size())
        return shape;
    const QVector<Vector> line = placesOf(shape.points);
    const double whole = lengthOf(line);
    const double middle = lengthUpTo(line, index);
    double along = 0.0;
    for (int i = 0; i < points.size(); ++i) {
        if (i > 0)
            along += double((line[i] - line[i - 1]).Length());
        double distance = std::abs(along - middle);
        if (shape.closed)
            distance = std::min(distance, whole - distance);
        const float share = i == index ? 1.0f : falloff(distance, reach);
        if (share > 0.0f)
            points[i] = onSurface(surface, line[i] + offset * share);
    }
    return likeBefore(shape, points, surface);
}

CurveShape shifted(const CurveShape &shape, const Vector &offset, const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    for (CurvePoint &point : points)
        point = onSurface(surface, point.position + offset);
    return likeBefore(shape, points, surface);
}

CurveShape mirrored(const CurveShape &shape, int axis, const Vector &center,
                    const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    for (CurvePoint &point : points) {
        Vector place = point.position;
        float &across = axis == 0 ? place.x : axis == 1 ? place.y : place.z;
        across = 2.0f * (axis == 0 ? center.x : axis == 1 ? center.y : center.z) - across;
        point = onSurface(surface, place);
    }
    return likeBefore(shape, points, surface);
}

CurveShape reversed(const CurveShape &shape, const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    std::reverse(points.begin() + (shape.closed && !points.isEmpty() ? 1 : 0), points.end());
    return likeBefore(shape, points, surface);
}

CurveShape resampled(const CurveShape &shape, float spacing, const SurfaceLocator &surface)
{
    QVector<Vector> line = placesOf(drawnPoints(shape));
    if (line.size() < 2 || !(spacing > 0.0f))
        return shape;
    if (shape.closed)
        line.append(line.first());
    const QVector<QVector<Vector>> ways = followSurface(line, spacing * FollowStep, surface);
    // Where the curve crosses the air there is no way to follow: its own stretches will do.
    const CurveShape even =
        evenlySpaced(ways.size() == 1 ? ways.first() : line, shape.closed, spacing, surface);
    return even.points.size() > 1 ? even : shape;
}

CurveShape opened(const CurveShape &shape)
{
    return {drawnPoints(shape), false};
}

} // namespace orvane
