// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>

#include <QList>

namespace orvane {
class OrvaneCurve;
}

//! Where a sample is, in world space: on its mesh while it has one, else where it was stored.
orvane::Vector samplePosition(const orvane::CurvePoint &point);

//! Appends the curve's own points that lie on a valid face; no resampling is done. The ends of an
//! open curve of at least two points are moved outwards, each by overrun times the length of its
//! end segment, along that segment.
void sampleCurve(const orvane::OrvaneCurve &curve, QList<orvane::CurvePoint> &samples,
                 float overrun);
