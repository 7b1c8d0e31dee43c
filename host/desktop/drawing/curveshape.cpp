// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curveshape.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <limits>

namespace orvane {

namespace {

const float Unlimited = std::numeric_limits<float>::max(); // scene units

// Over an edge of the surface the place just short of the first point may have that very point as
// its closest: then one farther back along the closing stretch is taken.
CurvePoint closingPoint(const OrvaneCurve &curve, const SurfaceLocator &surface)
{
    const Vector first = curve.Points().first().position;
    const Vector last = curve.Points().last().position;
    CurvePoint point = onSurface(surface, curve.ClosingPosition());
    for (float gap = 0.002f; point.position == first && gap < 0.5f; gap *= 2.0f)
        point = onSurface(surface, first + (last - first) * gap);
    return point;
}

} // namespace

QVector<CurvePoint> drawnPoints(const CurveShape &shape)
{
    const bool hasClosingPoint = shape.closed && shape.points.size() > 1;
    return hasClosingPoint ? shape.points.mid(0, shape.points.size() - 1) : shape.points;
}

QVector<Vector> placesOf(const QVector<CurvePoint> &points)
{
    QVector<Vector> places;
    places.reserve(points.size());
    for (const CurvePoint &point : points)
        places.append(point.position);
    return places;
}

CurvePoint onSurface(const SurfaceLocator &surface, const Vector &place)
{
    const SurfacePoint point = surface.ClosestPoint(place, Unlimited);
    return point.FaceIndex() < 0 ? CurvePoint(place) : CurvePoint(point);
}

CurveShape closedThrough(const QVector<CurvePoint> &drawn, const SurfaceLocator &surface)
{
    if (drawn.size() < 3 || drawn.last().position == drawn.first().position)
        return {drawn, false};
    OrvaneCurve curve;
    curve.SetPoints(drawn);
    const CurvePoint closing = closingPoint(curve, surface);
    if (closing.position == drawn.first().position)
        return {drawn, false};
    curve.AppendPoint(closing);
    return {curve.Points(), true};
}

CurveShape likeBefore(const CurveShape &shape, const QVector<CurvePoint> &drawn,
                      const SurfaceLocator &surface)
{
    return shape.closed ? closedThrough(drawn, surface) : CurveShape{drawn, false};
}

} // namespace orvane
