// SPDX-License-Identifier: MIT
#include "host/files/curvebinding.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <algorithm>

namespace orvane {

namespace {

class CurveBinder
{
public:
    CurveBinder(const SurfaceLocator &locator, float maxDistance)
        : m_locator(locator), m_maxDistance(maxDistance)
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

    CurvePoint closingPoint(const OrvaneCurve &curve) const
    {
        const CurvePoint point =
            curve.ClosingPoint([this](const Vector &place) { return bound(place); });
        const bool isOnFirst = point.position == curve.Points().first().position;
        return isOnFirst ? CurvePoint(curve.ClosingPosition()) : point;
    }

    const SurfaceLocator &m_locator;
    float m_maxDistance; // scene units
    CurveBinding m_result;
};

} // namespace

CurveBinding bindCurves(const QVector<OrvaneCurve *> &curves, const Mesh &mesh, float maxDistance)
{
    CurveBinder binder(mesh.Locator(), maxDistance);
    for (OrvaneCurve *curve : curves)
        binder.bind(curve);
    return binder.result();
}

} // namespace orvane
