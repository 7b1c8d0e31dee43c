// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curveshape.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <limits>

namespace orvane {

namespace {

const float Unlimited = std::numeric_limits<float>::max(); // scene units

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
    const CurvePoint closing =
        curve.ClosingPoint([&surface](const Vector &place) { return onSurface(surface, place); });
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
