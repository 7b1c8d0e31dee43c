// SPDX-License-Identifier: MIT
#include "graph/intersectionsearch.h"

#include "graph/crossingbatch.h"
#include "graph/curverecords.h"
#include "graph/nearmisses.h"
#include "graph/nodestore.h"
#include "graph/sampledcurves.h"
#include "graph/sortedboxes.h"

#include <orvane/base/timer.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <numeric>

using orvane::AxisAlignedBoundingBox;
using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const float MinimumNormal = 1e-5f; // squared length below which a sum of normals has no direction

// Two segments whose boxes overlap.
struct SegmentPair
{
    int a;
    int b;
};

class IntersectionSearch
{
public:
    IntersectionSearch(const QList<OrvaneCurve *> &curves, QList<IntersectionNode *> &nodes,
                       float distance)
        : m_curves(curves), m_nodes(nodes), m_firstNode(nodes.size()), m_sampled(curves, distance)
    {}

    void sampleCurves(float overrun);
    void findSelfIntersections();
    void findCrossIntersections();
    void linkAlongCurves();
    QVector<PointOnCurve> pointsOnCurves() const { return m_nearMisses.unresolved(m_crossings); }

private:
    QVector<int> runsOthersMeet() const;
    void searchRun(int run, int firstOther, const SortedBoxes &others);
    void searchSegment(int segment);
    void addPair(const SegmentPair &pair);
    void testPairs();
    void addNode(const SegmentPair &pair, const crossinglane::Answer &answer);
    void addNearMiss(const SegmentPair &pair, const crossinglane::Answer &answer);
    Crossing crossingOf(const SegmentPair &pair, const crossinglane::Answer &answer) const;

    const QList<OrvaneCurve *> &m_curves;
    QList<IntersectionNode *> &m_nodes;
    int m_firstNode; // of this search
    SampledCurves m_sampled;
    QVector<Crossing> m_crossings; // by node
    NearMisses m_nearMisses;

    QVector<int> m_nearRuns;     // those that the run being searched may meet, ascending
    BoxList m_nearBoxes;         // theirs
    QVector<int> m_runHits;      // of a segment: indices into m_nearRuns
    QVector<BoxSpan> m_runSpans; // those runs
    QVector<int> m_hits;         // of a segment: the segments that it may cross

    CrossingBatch m_batch;
    SegmentPair m_pairs[CrossingBatch::Capacity]; // those in the batch
};

void normalizeUnlessZero(Vector &sum)
{
    if (sum.LengthSquared() > MinimumNormal)
        sum.Normalize();
}

// By number, in order of linking. A node lies twice on curves, with two neighbours each time.
struct LinksOfNode
{
    int count = 0;
    int numbers[4];
};

void link(int a, int b, QVector<LinksOfNode> &links)
{
    links[a].numbers[links[a].count++] = b;
    links[b].numbers[links[b].count++] = a;
}

// One side of a link that is on its other side too.
void listNeighbour(IntersectionNode &node, IntersectionNode *neighbour)
{
    if (neighbour == &node || node.hasNeighbour(neighbour))
        return;
    node.neighbours.append(neighbour);
    node.outgoingUsed.append(false);
    node.incomingUsed.append(false);
}

orvane::Interface *hostInterface()
{
    return orvane::Kernel()->Interface();
}

void IntersectionSearch::sampleCurves(float overrun)
{
    hostInterface()->ProgressStart(QStringLiteral("sample curves..."), m_curves.size(), 1.0, 0);
    for (int k = 0; k < m_curves.size(); ++k) {
        m_sampled.sample(k, overrun);
        if (m_curves[k])
            hostInterface()->ProgressSet(k);
    }
    m_sampled.makeRuns();
    hostInterface()->ProgressEnd();
}

void IntersectionSearch::findSelfIntersections()
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

void IntersectionSearch::findCrossIntersections()
{
    hostInterface()->ProgressStart(QStringLiteral("cross intersections..."), m_curves.size(), 1.0,
                                   0);
    SortedBoxes others;
    others.assign(m_sampled.runBoxes(), runsOthersMeet());
    for (int k = 0; k < m_curves.size(); ++k) {
        const SampledCurve &curve = m_sampled.curves()[k];
        for (int run = curve.firstRun; run < curve.lastRun; ++run)
            searchRun(run, curve.lastRun, others);
        hostInterface()->ProgressSet(k);
    }
    testPairs();
    hostInterface()->ProgressEnd();
}

QVector<int> IntersectionSearch::runsOthersMeet() const
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
void IntersectionSearch::searchRun(int number, int firstOther, const SortedBoxes &others)
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
    for (int i = 0; i < count; ++i)
        m_nearBoxes.set(i, m_sampled.runBoxes().at(m_nearRuns[i]));
    const BoxSpan run = m_sampled.runs()[number];
    for (int segment = run.first; segment < run.last; ++segment)
        searchSegment(segment);
}

void IntersectionSearch::searchSegment(int segment)
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

void IntersectionSearch::addPair(const SegmentPair &pair)
{
    m_pairs[m_batch.size()] = pair;
    m_batch.add(m_sampled.segment(pair.a), m_sampled.segment(pair.b));
    if (m_batch.size() == CrossingBatch::Capacity)
        testPairs();
}

void IntersectionSearch::testPairs()
{
    m_batch.test();
    for (int i = 0; i < m_batch.size(); ++i) {
        const crossinglane::Answer answer = m_batch.answer(i);
        if (answer.isCrossing())
            addNode(m_pairs[i], answer);
        else if (NearMisses::isOnEnd(answer.ta, answer.tb))
            addNearMiss(m_pairs[i], answer);
    }
    m_batch.clear();
}

void IntersectionSearch::addNearMiss(const SegmentPair &pair, const crossinglane::Answer &answer)
{
    const Vector *a = m_sampled.segment(pair.a);
    m_nearMisses.note(crossingOf(pair, answer), a[0] + (a[1] - a[0]) * answer.ta);
}

Crossing IntersectionSearch::crossingOf(const SegmentPair &pair,
                                        const crossinglane::Answer &answer) const
{
    const int curveA = m_sampled.curveOf(pair.a);
    const int curveB = m_sampled.curveOf(pair.b);
    const int startA = m_sampled.curves()[curveA].firstSample;
    const int startB = m_sampled.curves()[curveB].firstSample;
    return {curveA, float(pair.a - startA) + answer.ta, curveB, float(pair.b - startB) + answer.tb};
}

void IntersectionSearch::addNode(const SegmentPair &pair, const crossinglane::Answer &answer)
{
    const Crossing crossing = crossingOf(pair, answer);
    m_crossings.append(crossing);
    NodeSample sample;
    sample.curvePoint.position = answer.place;
    for (int end : {pair.a, pair.a + 1, pair.b, pair.b + 1})
        sample.normal += m_sampled.normal(end);
    normalizeUnlessZero(sample.normal);
    auto *node = new IntersectionNode(sample); // owned by the node store
    NodeStore::instance().own(node);
    node->addCurve(m_curves[crossing.curveA]);
    node->addCurve(m_curves[crossing.curveB]);
    m_nodes.append(node);
}

// The links are gathered by number first: nodes along a curve lie far apart in memory, and each is
// written to only once.
void IntersectionSearch::linkAlongCurves()
{
    const CurveRecords records(m_curves.size(), m_crossings);
    QVector<LinksOfNode> links(m_crossings.size());
    for (int k = 0; k < m_curves.size(); ++k) {
        const int last = records.size(k) - 1;
        for (int i = 0; i < last; ++i)
            link(records.crossing(k, i), records.crossing(k, i + 1), links);
        if (m_sampled.curves()[k].isClosed && last > 0)
            link(records.crossing(k, last), records.crossing(k, 0), links);
    }
    const auto nodes = m_nodes.cbegin() + m_firstNode;
    for (int i = 0; i < links.size(); ++i) {
        for (int n = 0; n < links.at(i).count; ++n)
            listNeighbour(*nodes[i], nodes[links.at(i).numbers[n]]);
    }
}

struct StageTimers
{
    orvane::Timer sample{QStringLiteral("sample curves")};
    orvane::Timer self{QStringLiteral("self intersections")};
    orvane::Timer cross{QStringLiteral("cross intersections")};
    orvane::Timer link{QStringLiteral("link crossings")};
};

} // namespace

void findIntersections(const QList<OrvaneCurve *> &curves, QList<IntersectionNode *> &nodes,
                       float intersectionDistance, float overrun, bool useSelfIntersections,
                       SearchNotes *notes)
{
    if (curves.isEmpty())
        return;
    static StageTimers timers;
    orvane::Timer::ResetAll();
    IntersectionSearch search(curves, nodes, intersectionDistance);
    {
        const orvane::TimerLap lap(timers.sample);
        search.sampleCurves(overrun);
    }
    if (useSelfIntersections) {
        const orvane::TimerLap lap(timers.self);
        search.findSelfIntersections();
    }
    {
        const orvane::TimerLap lap(timers.cross);
        search.findCrossIntersections();
    }
    {
        const orvane::TimerLap lap(timers.link);
        search.linkAlongCurves();
    }
    orvane::Timer::LogAll();
    if (!notes)
        return;
    notes->pointsOnCurves = search.pointsOnCurves();
    notes->sampleSeconds = timers.sample.Seconds();
    notes->selfSeconds = timers.self.Seconds();
    notes->crossSeconds = timers.cross.Seconds();
    notes->linkSeconds = timers.link.Seconds();
}

Vector crossingNormal(const CurvePoint &p, const CurvePoint &q, const CurvePoint &r,
                      const CurvePoint &s)
{
    Vector sum;
    for (const CurvePoint *sample : {&p, &q, &r, &s})
        sum += sample->surfacePoint.WorldNormal(); // zero off any valid face
    normalizeUnlessZero(sum);
    return sum;
}
