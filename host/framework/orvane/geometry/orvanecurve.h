// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvebase.h>
#include <orvane/geometry/curvepoint.h>

#include <QVector>

#include <functional>

namespace orvane {

//! A curve of straight stretches between points.
//! A closed one ends where it began: its last point, the closing point, lies a thousandth of the
//! closing stretch short of the first, so that this stretch is like any other and the seam never
//! meets itself. Readers and tools add that point, writers leave it out.
class ORVANE_EXPORT OrvaneCurve : public CurveBase
{
public:
    int PointCount() const { return m_points.size(); }
    //! The default point when out of range.
    CurvePoint PointAt(int index) const { return m_points.value(index); }
    const QVector<CurvePoint> &Points() const { return m_points; }
    //! How many points were drawn: all but the closing point.
    int DrawnPointCount() const;
    //! Where the closing point of the points so far (at least one) belongs, in world space. On the
    //! first point only when the last point is.
    Vector ClosingPosition() const;
    //! The closing point of the points so far, put onto a surface. Where the surface bends, the
    //! place just short of the first point may have that very point as its closest: then one
    //! farther back along the closing stretch is taken. On the first point only when all of them
    //! are.
    CurvePoint ClosingPoint(const std::function<CurvePoint(const Vector &)> &ontoSurface) const;

    void SetPoints(const QVector<CurvePoint> &points) { m_points = points; }
    void AppendPoint(const CurvePoint &point) { m_points.append(point); }

    orvane::Geometry *Geometry() const override;
    bool IsUsable() const override;
    void Serialize(Stream &stream) override;
    //! Are all points at finite places?
    bool CheckValidity() const override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    QVector<CurvePoint> m_points;
};

} // namespace orvane
