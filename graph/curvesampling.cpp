// SPDX-License-Identifier: MIT
#include "graph/curvesampling.h"

#include <orvane/geometry/mesh.h>

namespace {

const int ExpectedSamples = 64; // count

} // namespace

orvane::Vector samplePosition(const orvane::CurvePoint &point)
{
    return point.surfacePoint.Mesh() ? point.surfacePoint.WorldPosition() : point.position;
}

orvane::Vector overrunShift(const orvane::OrvaneCurve &curve, int end, int inner, float overrun)
{
    orvane::Vector d = samplePosition(curve.PointAt(end)) - samplePosition(curve.PointAt(inner));
    const float length = d.Length() * overrun;
    return d.Normalize() * length;
}

void sampleCurve(const orvane::OrvaneCurve &curve, QList<orvane::CurvePoint> &samples,
                 float overrun)
{
    samples.reserve(ExpectedSamples);
    visitSamples(curve, overrun,
                 [&samples](int, const orvane::CurvePoint &sample) { samples.append(sample); });
}
