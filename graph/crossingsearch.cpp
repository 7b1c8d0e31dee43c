// SPDX-License-Identifier: MIT
#include "graph/crossingsearch.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <numeric>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

namespace {

orvane::Interface *hostInterface()
{
    return orvane::Kernel()->Interface();
}

} // namespace

void CrossingSearch::findSelfIntersections()
{
    const qint64 samples = m_sampled.sampleCount();
    hostInterface()->ProgressStart(QStringLiteral("self intersections..."), samples * samples, 1.0,
                                   0);
    SortedBoxes own;
    QVector<int> runs;
    for (const SampledCurve &curve : m_sampled.curves()) {
        runs.resize(curve.lastRun - curve.firstRun);
        std::iota(runs.begin(), runs.end(), curve.firstRun);
        own.assign(m_sampled.runBoxes(), runs);
        for (int run : qAsConst(runs)) {
            searchRun(run, run, own);
            hostInterface()->ProgressSet(m_sampled.runs()[run].last * samples);
        }
    }
    testPairs();
    hostInterface()->ProgressEnd();
}

void CrossingSearch::findCrossIntersections()
{
    hostInterface()->ProgressStart(QStringLiteral("cross intersections..."),
                                   m_sampled.curves().size(), 1.0, 0);
    SortedBoxes others;
    others.assign(m_sampled.runBoxes(), runsOthersMeet());
    for (int k = 0; k < m_sampled.curves().size(); ++k) {
        const SampledCurve &curve = m_sampled.curves()[k];
        for (int run = curve.firstRun; run < curve.lastRun; ++run)
            searchRun(run, curve.lastRun, others);
        hostInterface()->ProgressSet(k);
    }
    testPairs();
    hostInterface()->ProgressEnd();
}

QVector<int> CrossingSearch::runsOthersMeet() const
{
    QVector<int> runs;
    for (const SampledCurve &curve : m_sampled.curves()) {
        for (int run = curve.firstRun; curve.isNumber && run < curve.lastRun; ++run)
            runs.append(run);
    }
    return runs;
}

// Each level asks the same of a shorter list: all runs against this one, those left against each
// of its segments, and their segments against it. The lists ascend, so pairs come in order.
void CrossingSearch::searchRun(int number, int firstOther, const SortedBoxes &others)
{
    others.overlapping(m_sampled.runBoxes().at(number), firstOther, m_nearRuns);
    if (m_nearRuns.isEmpty())
        return;
    const int count = m_nearRuns.size();
    if (m_nearBoxes.size() < count) {
        m_nearBoxes.resize(count);
        m_runHits.resize(count + BoxLanes);
        m_runSpans.resize(count);
        m_hits.resize(count * RunLength + BoxLanes);
    }
    for (int i = 0; i < count; ++i) {
        const int near = m_nearRuns.at(i);
        m_nearBoxes.set(i, m_sampled.runBoxes().at(near));
        m_sampled.segmentBoxes().fetch(m_sampled.runs().at(near).first);
    }
    const BoxSpan run = m_sampled.runs()[number];
    for (int segment = run.first; segment < run.last; ++segment)
        searchSegment(segment);
}

void CrossingSearch::searchSegment(int segment)
{
    const BoxList &boxes = m_sampled.segmentBoxes();
    const AxisAlignedBoundingBox box = boxes.at(segment);
    const int runs = m_nearBoxes.overlapping(0, m_nearRuns.size(), box, m_runHits.data());
    BoxSpan *spans = m_runSpans.data();
    for (int i = 0; i < runs; ++i) {
        const BoxSpan other = m_sampled.runs()[m_nearRuns.at(m_runHits.at(i))];
        // On the same curve the next segment, which shares a sample, is left out.
        spans[i] = {qMax(other.first, segment + 2), other.last};
    }
    const int hits = boxes.overlapping(spans, runs, box, m_hits.data());
    for (int i = 0; i < hits; ++i)
        addPair({segment, m_hits.at(i)});
}

void CrossingSearch::addPair(const SegmentPair &pair)
{
    m_sampled.fetchSegment(pair.b);
    m_pairs[m_pairCount++] = pair;
    if (m_pairCount == CrossingBatch::Capacity)
        testPairs();
}

void CrossingSearch::testPairs()
{
    m_batch.clear();
    for (int i = 0; i < m_pairCount; ++i)
        m_batch.add(m_sampled.segment(m_pairs[i].a), m_sampled.segment(m_pairs[i].b));
    m_batch.test();
    for (int i = 0; i < m_pairCount; ++i) {
        const crossinglane::Answer answer = m_batch.answer(i);
        if (answer.isCrossing())
            addCrossing(m_pairs[i], answer);
        else if (NearMisses::isOnEnd(answer.ta, answer.tb))
            addNearMiss(m_pairs[i], answer);
    }
    m_pairCount = 0;
}

void CrossingSearch::addNearMiss(const SegmentPair &pair, const crossinglane::Answer &answer)
{
    const Vector *a = m_sampled.segment(pair.a);
    m_nearMisses.note(crossingOf(pair, answer), a[0] + (a[1] - a[0]) * answer.ta);
}

Crossing CrossingSearch::crossingOf(const SegmentPair &pair,
                                    const crossinglane::Answer &answer) const
{
    const int curveA = m_sampled.curveOf(pair.a);
    const int curveB = m_sampled.curveOf(pair.b);
    const int startA = m_sampled.curves()[curveA].firstSample;
    const int startB = m_sampled.curves()[curveB].firstSample;
    return {curveA, float(pair.a - startA) + answer.ta, curveB, float(pair.b - startB) + answer.tb};
}

void CrossingSearch::addCrossing(const SegmentPair &pair, const crossinglane::Answer &answer)
{
    m_crossings.append(crossingOf(pair, answer));
    m_meetings.append({pair.a, pair.b, answer.place});
}
