// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>
#include <orvane/geometry/orvanecurve.h>

#include <QList>

//! Where a sample is, in world space: on its mesh while it has one, else where it was stored.
orvane::Vector samplePosition(const orvane::CurvePoint &point);

//! How far to move the end of an open curve outwards: its point at index end, whose neighbour is at
//! index inner.
orvane::Vector overrunShift(const orvane::OrvaneCurve &curve, int end, int inner, float overrun);

//! Shows the samples of a curve one by one: visit(index of the curve's point, sample).
//! They are the curve's own points that lie on a valid face; no resampling is done. The ends of an
//! open curve of at least two points are moved outwards, each by overrun times the length of its
//! end segment, along that segment.
template <typename Visitor>
void visitSamples(const orvane::OrvaneCurve &curve, float overrun, Visitor visit)
{
    const int last = curve.PointCount() - 1;
    const bool hasLooseEnds = !curve.Closed() && last > 0;
    for (int i = 0; i <= last; ++i) {
        orvane::CurvePoint point = curve.Points()[i];
        if (!point.surfacePoint.IsOnValidFace())
            continue;
        if (hasLooseEnds && (i == 0 || i == last)) {
            const orvane::Vector shift = overrunShift(curve, i, i == 0 ? 1 : last - 1, overrun);
            point.position += shift;
            point.surfacePoint.Shift(shift);
        }
        visit(i, qAsConst(point));
    }
}

//! Appends the samples of the curve.
void sampleCurve(const orvane::OrvaneCurve &curve, QList<orvane::CurvePoint> &samples,
                 float overrun);
