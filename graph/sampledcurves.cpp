// SPDX-License-Identifier: MIT
#include "graph/sampledcurves.h"

#include "graph/curvesampling.h"
#include "graph/segmentcrossing.h"

#include <orvane/geometry/orvanecurve.h>

#include <limits>

using orvane::AxisAlignedBoundingBox;
using orvane::OrvaneCurve;
using orvane::Vector;

SampledCurves::SampledCurves(const QList<OrvaneCurve *> &curves, float distance)
    : m_curves(curves), m_distance(distance), m_sampled(curves.size())
{
    int points = 0;
    for (const OrvaneCurve *curve : curves)
        points += curve ? curve->PointCount() : 0;
    m_positions.reserve(points);
    m_curveOf.reserve(points);
    m_points.reserve(points);
    m_segmentBoxes.resize(points);
}

void SampledCurves::sample(int number, float overrun)
{
    SampledCurve &curve = m_sampled[number];
    curve.firstSample = m_positions.size();
    if (m_curves[number]) {
        curve.isClosed = m_curves[number]->Closed();
        visitSamples(*m_curves[number], overrun,
                     [this, number](int point, const orvane::CurvePoint &sample) {
                         m_positions.append(sample.surfacePoint.WorldPosition());
                         m_curveOf.append(number);
                         m_points.append(point);
                     });
    }
    curve.lastSample = m_positions.size();
    makeBoxes(curve);
    curve.firstRun = m_runs.size();
    for (int first = curve.firstSample; first < curve.lastSample - 1; first = m_runs.last().last)
        m_runs.append({first, qMin((first / RunLength + 1) * RunLength, curve.lastSample - 1)});
    curve.lastRun = m_runs.size();
}

void SampledCurves::makeBoxes(SampledCurve &curve)
{
    AxisAlignedBoundingBox whole;
    for (int i = curve.firstSample; i < curve.lastSample; ++i)
        whole.Extend(m_positions.at(i));
    whole.Grow(m_distance);
    curve.isNumber = isNumber(whole);
    for (int i = curve.firstSample; i < curve.lastSample - 1; ++i) {
        AxisAlignedBoundingBox box;
        box.Extend(m_positions.at(i));
        box.Extend(m_positions.at(i + 1));
        box.Grow(m_distance);
        m_segmentBoxes.set(i, snappedBox(box));
    }
}

void SampledCurves::makeRuns()
{
    m_normals.fill({std::numeric_limits<float>::quiet_NaN(), 0.0f, 0.0f}, m_positions.size());
    m_runBoxes.reserve(m_runs.size());
    for (const BoxSpan &run : qAsConst(m_runs))
        m_runBoxes.append(m_segmentBoxes.around(run.first, run.last));
}

// Many samples lie next to no crossing. Those next to each other lie near each other on the mesh:
// the normals of a run are found at once.
void SampledCurves::findNormals(int sample)
{
    const SampledCurve &curve = m_sampled[m_curveOf[sample]];
    const OrvaneCurve &source = *m_curves[m_curveOf[sample]];
    const int block = sample / RunLength * RunLength;
    const int last = qMin(block + RunLength, curve.lastSample);
    for (int i = qMax(block, curve.firstSample); i < last; ++i)
        m_normals[i] = source.Points()[m_points[i]].surfacePoint.WorldNormal();
}
