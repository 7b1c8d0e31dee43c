// SPDX-License-Identifier: MIT
#include "host/desktop/tools/brush.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <cmath>

namespace orvane {

namespace {

const int OutlineCorners = 48;   // count
const float FarSide = -0.2f;     // cosine: a surface that faces away so much is another side
const double Turn = 6.283185307; // radians

} // namespace

float Brush::Strength(const Vector &place) const
{
    const float share = (place - center).LengthSquared() / (radius * radius);
    return share < 1.0f ? (1.0f - share) * (1.0f - share) : 0.0f;
}

bool Brush::Reaches(const CurveShape &shape) const
{
    if (!IsOnSurface() || shape.points.size() < 2)
        return false;
    const PlaceOnLine nearest = nearestOnLine(placesOf(shape.points), center);
    if (nearest.stretch < 0 || nearest.distance > radius)
        return false;
    const Vector there = shape.points[nearest.stretch].surfacePoint.WorldNormal();
    return Dot(there, normal) > FarSide;
}

Brush brushAt(const QPointF &pixel, ToolContext &context)
{
    const SurfaceHit hit = surfaceAt(context.ViewCamera(), context.VisibleSurfaces(), pixel);
    if (!hit.IsHit())
        return {};
    const double radius =
        context.Settings().brushRadius * context.ViewCamera().PixelSize(hit.depth);
    return {hit.point.WorldPosition(), hit.point.WorldNormal(), float(radius)};
}

QVector<ViewShape> brushOutline(const QPointF &pixel, const QColor &colour, ToolContext &context)
{
    const double radius = context.Settings().brushRadius;
    QPolygonF rim;
    for (int i = 0; i < OutlineCorners; ++i) {
        const double angle = Turn * i / OutlineCorners;
        rim.append(pixel + QPointF(std::cos(angle), std::sin(angle)) * radius);
    }
    return {{rim, true, colour}};
}

} // namespace orvane
