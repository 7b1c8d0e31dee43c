// SPDX-License-Identifier: MIT
#include "host/desktop/tools/curveends.h"

#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/surfacepath.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <orvane/geometry/orvanecurve.h>

#include <QLineF>

#include <algorithm>

namespace orvane {

namespace {

const double EndReach = 14.0;   // pixels
const double HiddenBy = 3.0;    // pixels of depth: a curve lies on the surface, not behind it
const float FollowStep = 0.25f; // fraction of the spacing
const float TouchingGap = 0.5f; // fraction of the spacing

bool isSeen(const ScreenPoint &point, ToolContext &context)
{
    if (!point.seen)
        return false;
    const Camera &camera = context.ViewCamera();
    const SurfaceHit hit = surfaceAt(camera, context.VisibleSurfaces(), point.pixel);
    return !hit.IsHit() || hit.depth >= point.depth - HiddenBy * camera.PixelSize(point.depth);
}

QVector<CurvePoint> turned(QVector<CurvePoint> points)
{
    std::reverse(points.begin(), points.end());
    return points;
}

// From one point to another along the surface, both left out.
QVector<CurvePoint> bridge(const CurvePoint &from, const CurvePoint &to, float spacing,
                           const SurfaceLocator &surface)
{
    const QVector<QVector<Vector>> ways =
        followSurface({from.position, to.position}, FollowStep * spacing, surface);
    if (ways.size() != 1)
        return {};
    const QVector<CurvePoint> even = evenlySpaced(ways.first(), false, spacing, surface).points;
    return even.mid(1, std::max(0, even.size() - 2));
}

} // namespace

CurveEnd endAt(const QPointF &pixel, ToolContext &context)
{
    CurveEnd nearest;
    double least = EndReach;
    for (const OrvaneCurve *curve : usableCurves()) {
        for (int end = 0; end < 2 && !curve->Closed(); ++end) {
            const CurvePoint point = curve->PointAt(end == 0 ? 0 : curve->PointCount() - 1);
            const ScreenPoint screen = context.ViewCamera().Project(point.position);
            const double distance = QLineF(screen.pixel, pixel).length();
            if (!screen.seen || !(distance < least) || !isSeen(screen, context))
                continue;
            nearest = {curve->ID(), end == 1, point};
            least = distance;
        }
    }
    return nearest;
}

QVector<ViewLine> endMark(const CurveEnd &end)
{
    if (!end.IsEnd())
        return {};
    return {{{end.point.position, end.point.position}, companionColour(), 8.0f, true, true}};
}

CurveShape joinedAt(const CurveShape &first, bool atLast, const CurveShape &second, bool toLast,
                    const WorkSurface &surface)
{
    const float spacing = meanStretch(first);
    const QVector<CurvePoint> start = atLast ? first.points : turned(first.points);
    QVector<CurvePoint> rest = toLast ? turned(second.points) : second.points;
    const auto gap = [&] {
        return (rest.first().position - start.last().position).Length();
    };
    while (rest.size() > 1 && gap() <= TouchingGap * spacing)
        rest.removeFirst();
    QVector<CurvePoint> points = start;
    if (gap() > spacing && spacing > 0.0f)
        points += bridge(start.last(), rest.first(), spacing, *surface.locator);
    points += rest;
    return evenLike(first, {atLast ? points : turned(points), false}, surface);
}

} // namespace orvane
