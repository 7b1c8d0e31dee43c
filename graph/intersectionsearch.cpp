// SPDX-License-Identifier: MIT
#include "graph/intersectionsearch.h"

#include "graph/crossingnodes.h"
#include "graph/nodestore.h"

#include <orvane/base/timer.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <utility>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

void sampleCurves(SampledCurves &sampled, const QList<OrvaneCurve *> &curves, float overrun)
{
    orvane::Interface *host = orvane::Kernel()->Interface();
    host->ProgressStart(QStringLiteral("sample curves..."), curves.size(), 1.0, 0);
    for (int k = 0; k < curves.size(); ++k) {
        sampled.sample(k, overrun);
        if (curves[k])
            host->ProgressSet(k);
    }
    sampled.makeRuns();
    host->ProgressEnd();
}

// To the end of the list, and to the node store.
void addNodes(NodeBlock &&made, QList<IntersectionNode *> &nodes)
{
    nodes.reserve(nodes.size() + int(made.size()));
    for (IntersectionNode &node : made)
        nodes.append(&node);
    NodeStore::instance().own(std::move(made));
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
    SampledCurves sampled(curves, intersectionDistance);
    {
        const orvane::TimerLap lap(timers.sample);
        sampleCurves(sampled, curves, overrun);
    }
    CrossingSearch search(sampled);
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
        addNodes(nodesOfCrossings(search, curves, sampled), nodes);
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
