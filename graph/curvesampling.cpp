// SPDX-License-Identifier: MIT
#include "graph/curvesampling.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>

namespace {

const int ExpectedSamples = 64; // count

// How far to move the end point at index end, whose neighbour on the curve is at index inner.
orvane::Vector overrunShift(const orvane::OrvaneCurve &curve, int end, int inner, float overrun)
{
    orvane::Vector d = samplePosition(curve.PointAt(end)) - samplePosition(curve.PointAt(inner));
    const float length = d.Length() * overrun;
    return d.Normalize() * length;
}

} // namespace

orvane::Vector samplePosition(const orvane::CurvePoint &point)
{
    return point.surfacePoint.Mesh() ? point.surfacePoint.WorldPosition() : point.position;
}

void sampleCurve(const orvane::OrvaneCurve &curve, QList<orvane::CurvePoint> &samples,
                 float overrun)
{
    samples.reserve(ExpectedSamples);
    const int last = curve.PointCount() - 1;
    const bool hasLooseEnds = !curve.Closed() && last > 0;
    for (int i = 0; i <= last; ++i) {
        orvane::CurvePoint point = curve.PointAt(i);
        if (!point.surfacePoint.IsOnValidFace())
            continue;
        if (hasLooseEnds && (i == 0 || i == last)) {
            const int inner = i == 0 ? 1 : last - 1;
            const orvane::Vector shift = overrunShift(curve, i, inner, overrun);
            point.position += shift;
            point.surfacePoint.Shift(shift);
        }
        samples.append(point);
    }
}
