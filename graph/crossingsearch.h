// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossing.h"
#include "graph/crossingbatch.h"
#include "graph/nearmisses.h"
#include "graph/sampledcurves.h"
#include "graph/sortedboxes.h"

//! Looks for the crossings of sampled curves, all pairs pruned by boxes, and reports its progress
//! to the host. Crossings come in the order of their first segment, then of the second.
class CrossingSearch
{
public:
    explicit CrossingSearch(const SampledCurves &sampled) : m_sampled(sampled) {}

    //! Of each curve with itself.
    void findSelfIntersections();
    //! Of each curve with those after it.
    void findCrossIntersections();

    const QVector<Crossing> &crossings() const { return m_crossings; }
    //! Those of each crossing.
    const QVector<SegmentMeeting> &meetings() const { return m_meetings; }
    //! Where a curve passes exactly through a stored point of another: no crossing by the test.
    QVector<PointOnCurve> pointsOnCurves() const { return m_nearMisses.unresolved(m_crossings); }

private:
    // Two segments whose boxes overlap.
    struct SegmentPair
    {
        int a;
        int b;
    };

    QVector<int> runsOthersMeet() const;
    void searchRun(int run, int firstOther, const SortedBoxes &others);
    void searchSegment(int segment);
    void addPair(const SegmentPair &pair);
    void testPairs();
    void addCrossing(const SegmentPair &pair, const crossinglane::Answer &answer);
    void addNearMiss(const SegmentPair &pair, const crossinglane::Answer &answer);
    Crossing crossingOf(const SegmentPair &pair, const crossinglane::Answer &answer) const;

    const SampledCurves &m_sampled;
    QVector<Crossing> m_crossings;
    QVector<SegmentMeeting> m_meetings; // by crossing
    NearMisses m_nearMisses;

    QVector<int> m_nearRuns;     // those that the run being searched may meet, ascending
    BoxList m_nearBoxes;         // theirs
    QVector<int> m_runHits;      // of a segment: indices into m_nearRuns
    QVector<BoxSpan> m_runSpans; // those runs
    QVector<int> m_hits;         // of a segment: the segments that it may cross

    int m_pairCount = 0;
    SegmentPair m_pairs[CrossingBatch::Capacity]; // those to be tested
    CrossingBatch m_batch;
};
