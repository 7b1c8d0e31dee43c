// SPDX-License-Identifier: MIT
#include "host/desktop/tools/scenecurves.h"

#include "host/desktop/drawing/curvecontact.h"
#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>

namespace orvane {

namespace {

const float CopyReach = 0.02f; // fraction of the mean stretch
const float FirstWay = 0.05f;  // fraction of the mean stretch
const float LastWay = 0.4f;    // fraction of the mean stretch

bool isAlong(const QVector<Vector> &line, const QVector<Vector> &other, float reach)
{
    return std::all_of(line.cbegin(), line.cend(), [&](const Vector &place) {
        const PlaceOnLine nearest = nearestOnLine(other, place);
        return nearest.stretch >= 0 && nearest.distance <= reach;
    });
}

CurveShape sideways(const CurveShape &shape, float part, const SurfaceLocator &surface)
{
    const QVector<Vector> line = placesOf(shape.points);
    const float way = part * meanStretch(shape);
    QVector<CurvePoint> points = drawnPoints(shape);
    for (int i = 0; i < points.size(); ++i) {
        const Vector normal = points[i].surfacePoint.WorldNormal();
        const Vector aside = Normalized(normal & tangentAt(line, i));
        points[i] = onSurface(surface, line[i] + aside * way);
    }
    return likeBefore(shape, points, surface);
}

} // namespace

QVector<OrvaneCurve *> sceneCurvesThat(const std::function<bool(const OrvaneCurve &)> &are)
{
    QVector<OrvaneCurve *> curves;
    const Scene *scene = Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i) {
        auto *curve = dynamic_cast<OrvaneCurve *>(scene->NodeAt(i));
        if (curve && are(*curve))
            curves.append(curve);
    }
    return curves;
}

QVector<OrvaneCurve *> sceneCurves()
{
    return sceneCurvesThat([](const OrvaneCurve &) { return true; });
}

QVector<const OrvaneCurve *> usableCurves()
{
    const QVector<OrvaneCurve *> curves =
        sceneCurvesThat([](const OrvaneCurve &curve) { return curve.IsUsable(); });
    return {curves.cbegin(), curves.cend()};
}

QVector<OrvaneCurve *> selectedCurves()
{
    return sceneCurvesThat(
        [](const OrvaneCurve &curve) { return curve.Selected() && curve.IsUsable(); });
}

OrvaneCurve *curveOfID(int id)
{
    return dynamic_cast<OrvaneCurve *>(NodeTable::Instance().Find(id));
}

CurveShape shapeOf(const OrvaneCurve &curve)
{
    return {curve.Points(), curve.Closed()};
}

float meanStretch(const CurveShape &shape)
{
    const QVector<Vector> line = placesOf(shape.points);
    return line.size() < 2 ? 0.0f : float(lengthOf(line) / (line.size() - 1));
}

CurveSpace::CurveSpace(const QVector<const OrvaneCurve *> &leftOut)
{
    for (const OrvaneCurve *curve : sceneCurves()) {
        if (curve->PointCount() > 0 && !leftOut.contains(curve))
            m_lines.append(placesOf(curve->Points()));
    }
}

bool CurveSpace::HasCopyOf(const CurveShape &shape) const
{
    const QVector<Vector> line = placesOf(shape.points);
    const float reach = CopyReach * meanStretch(shape);
    return std::any_of(m_lines.cbegin(), m_lines.cend(), [&](const QVector<Vector> &other) {
        return isAlong(line, other, reach) && isAlong(other, line, reach);
    });
}

CurveShape CurveSpace::Settle(const CurveShape &shape, const SurfaceLocator &surface)
{
    CurveShape clear = clearOf(shape, m_lines, surface);
    // Where it runs along another line, single points find no free place: then all of it gives way.
    for (float part = FirstWay; part < LastWay && touches(placesOf(clear.points), m_lines);
         part *= -1.5f)
        clear = clearOf(sideways(shape, part, surface), m_lines, surface);
    if (!clear.points.isEmpty())
        m_lines.append(placesOf(clear.points));
    return clear;
}

} // namespace orvane
