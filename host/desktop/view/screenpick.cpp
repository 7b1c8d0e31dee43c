// SPDX-License-Identifier: MIT
#include "host/desktop/view/screenpick.h"

#include "host/desktop/view/camera.h"
#include "host/desktop/view/curvedrawdata.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <QLineF>
#include <QRectF>

#include <algorithm>

namespace orvane {

namespace {

const double PixelsAcrossPerDepth = 0.1; // a pixel of depth against one across the view

// The part of a segment before the near plane, seen in the view.
struct SeenSegment
{
    bool isSeen = false;
    Vector ends[2];
    ScreenPoint screen[2];
    double from = 0.0; // fraction of the whole segment where it begins
    double to = 1.0;
};

SeenSegment seenSegment(const Camera &camera, const Vector &a, const Vector &b,
                        const ScreenPoint &screenA, const ScreenPoint &screenB)
{
    SeenSegment segment{false, {a, b}, {screenA, screenB}};
    if (segment.screen[0].seen != segment.screen[1].seen) {
        const double depthA = camera.DepthOf(a);
        const double depthB = camera.DepthOf(b);
        // A little beyond the plane, so that rounding does not leave it on the wrong side.
        const double plane =
            camera.NearDepth() + 1e-5 * (std::max(depthA, depthB) - camera.NearDepth());
        const double cut = (plane - depthA) / (depthB - depthA);
        const int hidden = segment.screen[0].seen ? 1 : 0;
        (hidden == 0 ? segment.from : segment.to) = cut;
        segment.ends[hidden] = a + (b - a) * float(cut);
        segment.screen[hidden] = camera.Project(segment.ends[hidden]);
    }
    segment.isSeen = segment.screen[0].seen && segment.screen[1].seen;
    return segment;
}

// visit(number, segment) for each segment of the curve that is seen, until it answers true: then
// this does, too.
template <typename Visit>
bool anySeenSegment(const Camera &camera, const OrvaneCurve &curve, Visit visit)
{
    const QVector<CurvePoint> &points = curve.Points();
    ScreenPoint screen = camera.Project(points[0].position);
    for (int i = 0; i + 1 < points.size(); ++i) {
        const ScreenPoint next = camera.Project(points[i + 1].position);
        const SeenSegment segment =
            seenSegment(camera, points[i].position, points[i + 1].position, screen, next);
        if (segment.isSeen && visit(i, segment))
            return true;
        screen = next;
    }
    return false;
}

// The fraction in the scene of a point that is at a fraction across the view: inverse depth, not
// depth, changes evenly there.
double inScene(const Camera &camera, const SeenSegment &segment, double across)
{
    if (camera.IsOrthographic())
        return across;
    const double near = segment.screen[0].depth;
    const double far = segment.screen[1].depth;
    return across * near / ((1.0 - across) * far + across * near);
}

double depthAlong(const SeenSegment &segment, double part)
{
    return segment.screen[0].depth * (1.0 - part) + segment.screen[1].depth * part;
}

double closestFraction(const QPointF &a, const QPointF &b, const QPointF &p)
{
    const QPointF way = b - a;
    const double length = QPointF::dotProduct(way, way);
    return length > 0.0 ? qBound(0.0, QPointF::dotProduct(p - a, way) / length, 1.0) : 0.0;
}

// Is it seen where it is drawn? Lines are drawn a little before the surface they lie on.
bool isHidden(const Camera &camera, const SurfaceList &surfaces, const QPointF &pixel, double depth)
{
    if (surfaces.isEmpty())
        return false;
    const SurfaceHit hit = surfaceAt(camera, surfaces, pixel);
    return hit.IsHit() && hit.depth < depth - CurveLift * camera.PixelSize(depth);
}

// Polygon and rectangle of the region, and what hides curves from it.
struct Region
{
    bool holds(const QPointF &pixel) const
    {
        return box.contains(pixel) && polygon.containsPoint(pixel, Qt::WindingFill);
    }
    bool holdsSeen(const ScreenPoint &point) const
    {
        return holds(point.pixel) && !isHidden(camera, surfaces, point.pixel, point.depth);
    }

    const Camera &camera;
    const SurfaceList &surfaces;
    QPolygonF polygon;
    QRectF box;
};

bool isPointInside(const OrvaneCurve &curve, const Region &region)
{
    return std::any_of(curve.Points().cbegin(), curve.Points().cend(),
                       [&region](const CurvePoint &point) {
                           const ScreenPoint screen = region.camera.Project(point.position);
                           return screen.seen && region.holdsSeen(screen);
                       });
}

// A quick look before the sides of a long lasso are gone through.
bool isBeside(const QLineF &line, const QRectF &box)
{
    return std::max(line.x1(), line.x2()) < box.left()
           || std::min(line.x1(), line.x2()) > box.right()
           || std::max(line.y1(), line.y2()) < box.top()
           || std::min(line.y1(), line.y2()) > box.bottom();
}

// Does a side of the region meet the segment at a place that is seen?
bool crossesRegion(const SeenSegment &segment, const Region &region)
{
    const QLineF line(segment.screen[0].pixel, segment.screen[1].pixel);
    if (isBeside(line, region.box))
        return false;
    for (int i = 0; i < region.polygon.size(); ++i) {
        const QLineF side(region.polygon[i], region.polygon[(i + 1) % region.polygon.size()]);
        QPointF pixel;
        if (line.intersects(side, &pixel) != QLineF::BoundedIntersection)
            continue;
        const double across = closestFraction(line.p1(), line.p2(), pixel);
        const double part = inScene(region.camera, segment, across);
        if (!isHidden(region.camera, region.surfaces, pixel, depthAlong(segment, part)))
            return true;
    }
    return false;
}

bool isPartInside(const OrvaneCurve &curve, const Region &region)
{
    if (isPointInside(curve, region))
        return true;
    return anySeenSegment(region.camera, curve, [&region](int, const SeenSegment &segment) {
        return crossesRegion(segment, region);
    });
}

bool isAllInside(const OrvaneCurve &curve, const Region &region)
{
    bool anySeen = false;
    for (const CurvePoint &point : curve.Points()) {
        const ScreenPoint screen = region.camera.Project(point.position);
        if (screen.seen && region.holds(screen.pixel)) {
            anySeen =
                anySeen || !isHidden(region.camera, region.surfaces, screen.pixel, screen.depth);
            continue;
        }
        if (!screen.seen || !isHidden(region.camera, region.surfaces, screen.pixel, screen.depth))
            return false;
    }
    return anySeen;
}

// How far back in the choice among curves a hit stands.
double rank(const Camera &camera, const CurveHit &hit)
{
    return hit.distance + PixelsAcrossPerDepth * hit.depth / camera.PixelSize(camera.PivotDepth());
}

void appendHits(QVector<CurveHit> &hits, const Camera &camera, const OrvaneCurve &curve,
                const QPointF &pixel, double tolerance)
{
    const QPointF reach(tolerance, tolerance);
    const QRectF box(pixel - reach, pixel + reach);
    anySeenSegment(camera, curve, [&](int number, const SeenSegment &segment) {
        const QLineF line(segment.screen[0].pixel, segment.screen[1].pixel);
        if (isBeside(line, box))
            return false;
        const double across = closestFraction(line.p1(), line.p2(), pixel);
        const double distance = QLineF(pixel, line.pointAt(across)).length();
        if (!(distance <= tolerance))
            return false;
        const double part = inScene(camera, segment, across);
        hits.append({&curve, number, float(segment.from + part * (segment.to - segment.from)),
                     segment.ends[0] + (segment.ends[1] - segment.ends[0]) * float(part), distance,
                     depthAlong(segment, part)});
        return false;
    });
}

} // namespace

SurfaceHit surfaceAt(const Camera &camera, const SurfaceList &surfaces, const QPointF &pixel)
{
    const ViewRay ray = camera.RayThrough(pixel);
    SurfaceHit nearest;
    for (int i = 0; i < surfaces.size(); ++i) {
        const SurfacePoint point = surfaces[i]->Pick(ray.origin, ray.direction);
        if (point.FaceIndex() < 0)
            continue;
        const double depth = camera.DepthOf(point.WorldPosition());
        if (!nearest.IsHit() || depth < nearest.depth)
            nearest = {i, point, depth};
    }
    return nearest;
}

CurveHit curveAt(const Camera &camera, const QVector<const OrvaneCurve *> &curves,
                 const QPointF &pixel, double tolerance, const SurfaceList &surfaces)
{
    QVector<CurveHit> hits;
    for (const OrvaneCurve *curve : curves) {
        if (curve->IsUsable())
            appendHits(hits, camera, *curve, pixel, tolerance);
    }
    std::stable_sort(hits.begin(), hits.end(), [&camera](const CurveHit &a, const CurveHit &b) {
        return rank(camera, a) < rank(camera, b);
    });
    for (const CurveHit &hit : qAsConst(hits)) {
        const ScreenPoint screen = camera.Project(hit.place);
        if (!isHidden(camera, surfaces, screen.pixel, hit.depth))
            return hit;
    }
    return {};
}

QVector<const OrvaneCurve *> curvesInLasso(const Camera &camera,
                                           const QVector<const OrvaneCurve *> &curves,
                                           const QPolygonF &lasso, Inside how,
                                           const SurfaceList &surfaces)
{
    const Region region{camera, surfaces, lasso, lasso.boundingRect()};
    QVector<const OrvaneCurve *> found;
    for (const OrvaneCurve *curve : curves) {
        if (!curve->IsUsable())
            continue;
        if (how == Inside::APart ? isPartInside(*curve, region) : isAllInside(*curve, region))
            found.append(curve);
    }
    return found;
}

QVector<const OrvaneCurve *> curvesInRectangle(const Camera &camera,
                                               const QVector<const OrvaneCurve *> &curves,
                                               const QRectF &rectangle, Inside how,
                                               const SurfaceList &surfaces)
{
    return curvesInLasso(camera, curves, QPolygonF(rectangle.normalized()), how, surfaces);
}

} // namespace orvane
