// SPDX-License-Identifier: MIT
#pragma once

#include "graph/boxlist.h"

#include <orvane/math/vector.h>

#include <QList>
#include <QVector>

#include <cmath>

namespace orvane {
class OrvaneCurve;
}

//! One curve among the sampled ones.
struct SampledCurve
{
    int firstSample = 0;
    int lastSample = 0; // one past
    int firstRun = 0;
    int lastRun = 0; // one past
    bool isClosed = false;
    bool isNumber = false; // its box has no NaN for a side: only then can others meet it
};

//! Most segments of a run: consecutive segments of a curve whose boxes are tested at once. A
//! segment has the number of its first sample, and runs begin at the multiples of this one.
const int RunLength = BoxLanes;

//! The curves as the search sees them: samples, segments and runs of segments of all curves one
//! after the other, numbered through.
class SampledCurves
{
public:
    //! distance (scene units): how far each box is grown on every side.
    SampledCurves(const QList<orvane::OrvaneCurve *> &curves, float distance);

    //! Appends the samples of the curve, the next in the list. A null curve has none.
    void sample(int curve, float overrun);
    //! Once every curve is sampled: puts boxes around the runs.
    void makeRuns();

    const QVector<SampledCurve> &curves() const { return m_sampled; }
    const QVector<BoxSpan> &runs() const { return m_runs; }
    //! Grown and snapped.
    const BoxList &segmentBoxes() const { return m_segmentBoxes; }
    const QVector<orvane::AxisAlignedBoundingBox> &runBoxes() const { return m_runBoxes; }

    int sampleCount() const { return m_positions.size(); }
    //! Its two ends.
    const orvane::Vector *segment(int number) const { return m_positions.constData() + number; }
    //! The curve that a sample is of.
    int curveOf(int sample) const { return m_curveOf[sample]; }
    //! Of the surface at a sample.
    const orvane::Vector &normal(int sample)
    {
        if (std::isnan(m_normals.at(sample).x))
            findNormals(sample);
        return m_normals.at(sample);
    }

    //! Will soon be asked for its normal.
    void fetchNormal(int sample) const { fetch(m_normals.constData() + sample); }
    //! Will soon be asked for as a segment, and for its curve.
    void fetchSegment(int number) const
    {
        fetch(segment(number));
        fetch(m_curveOf.constData() + number);
    }

private:
    void makeBoxes(SampledCurve &curve);
    void findNormals(int sample);

    const QList<orvane::OrvaneCurve *> &m_curves;
    float m_distance;
    QVector<SampledCurve> m_sampled;
    QVector<orvane::Vector> m_positions;
    QVector<int> m_curveOf;            // by sample
    QVector<int> m_points;             // by sample: the index of its point on the curve
    QVector<orvane::Vector> m_normals; // by sample: NaN until someone asks
    BoxList m_segmentBoxes;
    QVector<BoxSpan> m_runs;
    QVector<orvane::AxisAlignedBoundingBox> m_runBoxes;
};
