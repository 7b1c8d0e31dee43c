// SPDX-License-Identifier: MIT
#include "host/files/curvebinding.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <algorithm>

namespace orvane {

namespace {

class CurveBinder
{
public:
    CurveBinder(const Mesh &mesh, float maxDistance) : m_locator(mesh), m_maxDistance(maxDistance)
    {}

    void bind(OrvaneCurve *curve)
    {
        QVector<CurvePoint> points = curve->Points().mid(0, curve->DrawnPointCount());
        for (CurvePoint &point : points)
            bindDrawn(&point);
        const bool closes = curve->PointCount() > points.size();
        curve->SetPoints(points);
        if (closes)
            curve->AppendPoint(closingPoint(*curve));
    }

    const CurveBinding &result() const { return m_result; }

private:
    CurvePoint bound(const Vector &place) const
    {
        const SurfacePoint point = m_locator.ClosestPoint(place, m_maxDistance);
        return point.IsOnValidFace() ? CurvePoint(point) : CurvePoint(place);
    }

    void bindDrawn(CurvePoint *point)
    {
        const Vector place = point->position;
        *point = bound(place);
        ++m_result.points;
        if (!point->surfacePoint.IsOnValidFace())
            return;
        ++m_result.bound;
        const float distance = (point->position - place).Length();
        m_result.greatestDistance = std::max(m_result.greatestDistance, distance);
    }

    // The surface may bend so that the place just short of the first point has that very point as
    // its closest: then a place farther back along the closing stretch is taken.
    CurvePoint closingPoint(const OrvaneCurve &curve) const
    {
        const Vector first = curve.Points().first().position;
        const Vector last = curve.Points().last().position;
        const Vector place = curve.ClosingPosition();
        CurvePoint point = bound(place);
        for (float gap = 0.002f; point.position == first && gap < 0.5f; gap *= 2.0f)
            point = bound(first + (last - first) * gap);
        return point.position == first ? CurvePoint(place) : point;
    }

    SurfaceLocator m_locator;
    float m_maxDistance; // scene units
    CurveBinding m_result;
};

} // namespace

CurveBinding bindCurves(const QVector<OrvaneCurve *> &curves, const Mesh &mesh, float maxDistance)
{
    CurveBinder binder(mesh, maxDistance);
    for (OrvaneCurve *curve : curves)
        binder.bind(curve);
    return binder.result();
}

} // namespace orvane
