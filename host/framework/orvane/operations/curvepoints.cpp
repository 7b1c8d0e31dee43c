// SPDX-License-Identifier: MIT
#include <orvane/operations/curvepoints.h>

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace orvane {

namespace {

SurfacePoint boundAnew(const SurfacePoint &point)
{
    return {*point.Mesh(), point.FaceIndex(), point.U(), point.V()};
}

// Exactly on the surface, neither lifted off it nor left behind by it?
bool isOnSurface(const CurvePoint &point, const Geometry &geometry)
{
    const SurfacePoint &surface = point.surfacePoint;
    return surface.IsOnValidFace() && surface.Mesh()->Holder() == &geometry
           && surface.WorldPosition() == point.position
           && boundAnew(surface).WorldPosition() == point.position;
}

void shiftTo(CurvePoint &point, const Vector &place)
{
    point.surfacePoint.Shift(place - point.surfacePoint.WorldPosition());
    point.position = place;
}

// Moves points from the frame where a geometry stood to the one where it stands.
class PointMover
{
public:
    PointMover(const Placement &from, const Placement &to) : m_from(from), m_to(to) {}

    CurvePoint moved(CurvePoint point, bool onSurface) const
    {
        if (onSurface)
            return CurvePoint(boundAnew(point.surfacePoint));
        const Vector &cached = point.surfacePoint.WorldPosition();
        if (point.surfacePoint.Mesh())
            point.surfacePoint.Shift(place(cached) - cached);
        point.position = place(point.position);
        return point;
    }

private:
    Vector place(const Vector &before) const { return m_to.ToWorld(m_from.ToLocal(before)); }

    const Placement &m_from;
    const Placement &m_to;
};

// Far from the origin rounding can join the closing point and the first one.
void keepClosingPointApart(QVector<CurvePoint> &points)
{
    OrvaneCurve drawn;
    drawn.SetPoints(points.mid(0, points.size() - 1));
    if (drawn.PointCount() > 1 && points.last().position == points.first().position)
        shiftTo(points.last(), drawn.ClosingPosition());
}

QVector<OrvaneCurve *> curvesOn(const Geometry &geometry)
{
    QVector<OrvaneCurve *> curves;
    const Scene *scene = Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i) {
        auto *curve = dynamic_cast<OrvaneCurve *>(scene->NodeAt(i));
        if (curve && curve->Geometry() == &geometry)
            curves.append(curve);
    }
    return curves;
}

} // namespace

bool areValid(const QVector<CurvePoint> &points)
{
    OrvaneCurve curve;
    curve.SetPoints(points);
    return curve.CheckValidity();
}

QVector<PointsOfCurve> pointsAfterMove(const Geometry &geometry, const Matrix &worldMatrix)
{
    const QVector<OrvaneCurve *> curves = curvesOn(geometry);
    QVector<QVector<bool>> onSurface;
    for (const OrvaneCurve *curve : curves) {
        onSurface.append(QVector<bool>());
        for (const CurvePoint &point : curve->Points())
            onSurface.last().append(isOnSurface(point, geometry));
    }
    // Only where it will stand can the surface tell a point's place as binding there would.
    const Placement before = *geometry.Placement();
    geometry.Placement()->SetWorldMatrix(worldMatrix);
    const PointMover mover(before, *geometry.Placement());
    QVector<PointsOfCurve> result;
    for (int i = 0; i < curves.size(); ++i) {
        PointsOfCurve moved{curves[i]->ID(), {}};
        for (int k = 0; k < curves[i]->PointCount(); ++k)
            moved.points.append(mover.moved(curves[i]->PointAt(k), onSurface[i][k]));
        if (curves[i]->Closed())
            keepClosingPointApart(moved.points);
        result.append(moved);
    }
    geometry.Placement()->SetWorldMatrix(before.WorldMatrix());
    return result;
}

} // namespace orvane
