// SPDX-License-Identifier: MIT
#include <orvane/geometry/orvanecurve.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const float ClosingGap = 0.001f; // fraction of the closing stretch
const float GreatestGap = 0.5f;  // fraction of the closing stretch

} // namespace

int OrvaneCurve::DrawnPointCount() const
{
    return Closed() && PointCount() > 1 ? PointCount() - 1 : PointCount();
}

Vector OrvaneCurve::ClosingPosition() const
{
    const Vector first = m_points.first().position;
    const Vector last = m_points.last().position;
    const Vector place = first + (last - first) * ClosingGap;
    if (place != first)
        return place;
    // A stretch so short, so far from the origin, that rounding joins the two.
    return {std::nextafter(first.x, last.x), std::nextafter(first.y, last.y),
            std::nextafter(first.z, last.z)};
}

CurvePoint
OrvaneCurve::ClosingPoint(const std::function<CurvePoint(const Vector &)> &ontoSurface) const
{
    const Vector first = m_points.first().position;
    const Vector last = m_points.last().position;
    CurvePoint point = ontoSurface(ClosingPosition());
    for (float gap = 2.0f * ClosingGap; point.position == first && gap < GreatestGap; gap *= 2.0f)
        point = ontoSurface(first + (last - first) * gap);
    return point;
}

orvane::Geometry *OrvaneCurve::Geometry() const
{
    for (const CurvePoint &point : m_points) {
        if (const Mesh *mesh = point.surfacePoint.Mesh())
            return mesh->Holder();
    }
    return nullptr;
}

bool OrvaneCurve::IsUsable() const
{
    return !IsHidden() && PointCount() >= 2;
}

void OrvaneCurve::Serialize(Stream &stream)
{
    CurveBase::Serialize(stream);
    stream.Transfer(m_points);
}

bool OrvaneCurve::CheckValidity() const
{
    return std::all_of(m_points.cbegin(), m_points.cend(), [](const CurvePoint &point) {
        return point.position.IsFinite() && point.surfacePoint.WorldPosition().IsFinite()
               && std::isfinite(point.surfacePoint.U()) && std::isfinite(point.surfacePoint.V());
    });
}

const ClassDesc *OrvaneCurve::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *OrvaneCurve::StaticClass()
{
    static const ClassDesc desc(CurveBase::StaticClass(), CurveBase::StaticClass(), "OrvaneCurve",
                                "Curve", createInstances<OrvaneCurve>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = OrvaneCurve::StaticClass();
} // namespace

} // namespace orvane
