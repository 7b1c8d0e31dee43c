// SPDX-License-Identifier: MIT
#include "host/files/curvebinding.h"

#include <orvane/base/parallel.h>
#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/surfacelocator.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace orvane {

namespace {

const int LeastOfThread = 2000; // points
const int PartsOfThread = 4;    // points close to the mesh are found faster

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

int pointCountOf(const QVector<OrvaneCurve *> &curves, int first)
{
    return std::accumulate(
        curves.cbegin() + first, curves.cend(), 0,
        [](int sum, const OrvaneCurve *curve) { return sum + curve->PointCount(); });
}

} // namespace

CurveBinding bindCurves(const QVector<OrvaneCurve *> &curves, const Mesh &mesh, float maxDistance)
{
    const SurfaceLocator &locator = mesh.Locator();
    CurveBinder first(locator, maxDistance);
    int done = 0;
    // With the first point on it a mesh is given its number, which no two threads may do.
    while (done < curves.size() && first.result().bound == 0)
        first.bind(curves[done++]);
    const int threads = threadsFor(pointCountOf(curves, done), LeastOfThread);
    const int parts = threads > 1 ? threads * PartsOfThread : 1;
    const qint64 count = curves.size() - done;
    std::vector<CurveBinding> results;
    results.resize(size_t(parts));
    inParallel(parts, [&](int part) {
        CurveBinder binder(locator, maxDistance);
        for (qint64 i = count * part / parts; i < count * (part + 1) / parts; ++i)
            binder.bind(curves[done + int(i)]);
        results[size_t(part)] = binder.result();
    });
    CurveBinding whole = first.result();
    for (const CurveBinding &result : results) {
        whole.points += result.points;
        whole.bound += result.bound;
        whole.greatestDistance = std::max(whole.greatestDistance, result.greatestDistance);
    }
    return whole;
}

} // namespace orvane
