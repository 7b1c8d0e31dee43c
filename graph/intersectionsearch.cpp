// SPDX-License-Identifier: MIT
#include "graph/intersectionsearch.h"

#include "graph/curverecord.h"
#include "graph/curvesampling.h"
#include "graph/nearmisses.h"
#include "graph/nodestore.h"
#include "graph/segmentcrossing.h"

#include <orvane/base/timer.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

using orvane::AxisAlignedBoundingBox;
using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const float MinimumNormal = 1e-5f; // squared length below which a sum of normals has no direction

// One curve as the search sees it.
struct SampledCurve
{
    int segmentCount() const { return boxes.size(); }

    QList<CurvePoint> samples;
    QVector<Vector> positions;             // by sample
    QVector<AxisAlignedBoundingBox> boxes; // by segment, grown and snapped
    AxisAlignedBoundingBox box;            // of all samples, grown and snapped
};

struct SegmentPair
{
    int curveA;
    int segmentA;
    int curveB;
    int segmentB;
};

class IntersectionSearch
{
public:
    IntersectionSearch(const QList<OrvaneCurve *> &curves, QList<IntersectionNode *> &nodes,
                       float distance)
        : m_curves(curves), m_nodes(nodes), m_distance(distance)
    {}

    void sampleCurves(float overrun);
    void findSelfIntersections();
    void findCrossIntersections();
    void linkAlongCurves();
    QVector<PointOnCurve> pointsOnCurves() const { return m_nearMisses.unresolved(m_records); }

private:
    void makeBoxes(SampledCurve &curve) const;
    void searchSegment(int k, int i, int l);
    void testPair(const SegmentPair &pair);
    void addNode(const SegmentPair &pair, const Vector &place, float ta, float tb);

    const QList<OrvaneCurve *> &m_curves;
    QList<IntersectionNode *> &m_nodes;
    float m_distance;
    QVector<SampledCurve> m_sampled;
    QVector<bool> m_closed;
    QVector<CurveRecord> m_records;
    NearMisses m_nearMisses;
};

orvane::Interface *hostInterface()
{
    return orvane::Kernel()->Interface();
}

void IntersectionSearch::sampleCurves(float overrun)
{
    hostInterface()->ProgressStart(QStringLiteral("sample curves..."), m_curves.size(), 1.0, 0);
    m_sampled.resize(m_curves.size());
    m_closed.fill(false, m_curves.size());
    m_records.resize(m_curves.size());
    for (int k = 0; k < m_curves.size(); ++k) {
        if (!m_curves[k])
            continue;
        SampledCurve &curve = m_sampled[k];
        sampleCurve(*m_curves[k], curve.samples, overrun);
        m_closed[k] = m_curves[k]->Closed();
        makeBoxes(curve);
        hostInterface()->ProgressSet(k);
    }
    hostInterface()->ProgressEnd();
}

void IntersectionSearch::makeBoxes(SampledCurve &curve) const
{
    const int count = curve.samples.size();
    curve.positions.reserve(count);
    AxisAlignedBoundingBox whole;
    for (const CurvePoint &sample : qAsConst(curve.samples)) {
        curve.positions.append(samplePosition(sample));
        whole.Extend(curve.positions.last());
    }
    whole.Grow(m_distance);
    curve.box = snappedBox(whole);
    curve.boxes.reserve(qMax(0, count - 1));
    for (int i = 0; i + 1 < count; ++i) {
        AxisAlignedBoundingBox box;
        box.Extend(curve.positions[i]);
        box.Extend(curve.positions[i + 1]);
        box.Grow(m_distance);
        curve.boxes.append(snappedBox(box));
    }
}

void IntersectionSearch::findSelfIntersections()
{
    qint64 samples = 0;
    for (const SampledCurve &curve : qAsConst(m_sampled))
        samples += curve.samples.size();
    hostInterface()->ProgressStart(QStringLiteral("self intersections..."), samples * samples, 1.0,
                                   0);
    qint64 done = 0;
    for (int k = 0; k < m_sampled.size(); ++k) {
        const SampledCurve &curve = m_sampled[k];
        for (int i = 0; i < curve.segmentCount(); ++i) {
            for (int j = i + 2; j < curve.segmentCount(); ++j) {
                if (snappedBoxesOverlap(curve.boxes[i], curve.boxes[j]))
                    testPair({k, i, k, j});
            }
            hostInterface()->ProgressSet((done + i) * samples);
        }
        done += curve.samples.size();
    }
    hostInterface()->ProgressEnd();
}

void IntersectionSearch::findCrossIntersections()
{
    hostInterface()->ProgressStart(QStringLiteral("cross intersections..."), m_curves.size(), 1.0,
                                   0);
    for (int k = 0; k < m_sampled.size(); ++k) {
        for (int i = 0; i < m_sampled[k].segmentCount(); ++i) {
            for (int l = k + 1; l < m_sampled.size(); ++l)
                searchSegment(k, i, l);
        }
        hostInterface()->ProgressSet(k);
    }
    hostInterface()->ProgressEnd();
}

void IntersectionSearch::searchSegment(int k, int i, int l)
{
    const AxisAlignedBoundingBox &box = m_sampled[k].boxes[i];
    const SampledCurve &other = m_sampled[l];
    if (!snappedBoxesOverlap(other.box, box))
        return;
    const AxisAlignedBoundingBox *boxes = other.boxes.constData();
    for (int j = 0; j < other.segmentCount(); ++j) {
        if (snappedBoxesOverlap(box, boxes[j]))
            testPair({k, i, l, j});
    }
}

void IntersectionSearch::testPair(const SegmentPair &pair)
{
    const Vector *a = m_sampled[pair.curveA].positions.constData() + pair.segmentA;
    const Vector *b = m_sampled[pair.curveB].positions.constData() + pair.segmentB;
    Vector place;
    float ta = 0.0f;
    float tb = 0.0f;
    if (segmentsCross(a[0], a[1], b[0], b[1], place, ta, tb)) {
        addNode(pair, place, ta, tb);
    } else if (NearMisses::isOnEnd(ta, tb)) {
        m_nearMisses.note(pair.curveA, float(pair.segmentA) + ta, pair.curveB,
                          float(pair.segmentB) + tb, a[0] + (a[1] - a[0]) * ta);
    }
}

void IntersectionSearch::addNode(const SegmentPair &pair, const Vector &place, float ta, float tb)
{
    const QList<CurvePoint> &a = m_sampled[pair.curveA].samples;
    const QList<CurvePoint> &b = m_sampled[pair.curveB].samples;
    NodeSample sample;
    sample.curvePoint.position = place;
    sample.normal = crossingNormal(a[pair.segmentA], a[pair.segmentA + 1], b[pair.segmentB],
                                   b[pair.segmentB + 1]);
    auto *node = new IntersectionNode(sample); // owned by the node store
    NodeStore::instance().own(node);
    node->addCurve(m_curves[pair.curveA]);
    node->addCurve(m_curves[pair.curveB]);
    m_nodes.append(node);
    m_records[pair.curveA].insert(float(pair.segmentA) + ta, node);
    m_records[pair.curveB].insert(float(pair.segmentB) + tb, node);
}

void IntersectionSearch::linkAlongCurves()
{
    for (int k = 0; k < m_records.size(); ++k) {
        const QVector<IntersectionNode *> &nodes = m_records[k].nodes();
        for (int i = 0; i + 1 < nodes.size(); ++i)
            nodes[i]->addNeighbour(nodes[i + 1]);
        if (m_closed[k] && nodes.size() > 1)
            nodes.last()->addNeighbour(nodes.first());
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
    if (sum.LengthSquared() > MinimumNormal)
        sum.Normalize();
    return sum;
}
