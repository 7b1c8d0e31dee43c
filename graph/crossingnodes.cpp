// SPDX-License-Identifier: MIT
#include "graph/crossingnodes.h"

#include "graph/curverecords.h"
#include "graph/fetch.h"

using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const float MinimumNormal = 1e-5f; // squared length below which a sum of normals has no direction

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

QVector<LinksOfNode> linksAlongCurves(const QVector<Crossing> &crossings,
                                      const QVector<SampledCurve> &curves)
{
    QVector<int> sampleCounts;
    for (const SampledCurve &curve : curves)
        sampleCounts.append(curve.lastSample - curve.firstSample);
    const CurveRecords records(sampleCounts, crossings);
    QVector<LinksOfNode> links(crossings.size());
    for (int k = 0; k < curves.size(); ++k) {
        const int last = records.size(k) - 1;
        for (int i = 0; i < last; ++i) {
            if (i + FetchAhead < last)
                fetch(links.constData() + records.crossing(k, i + FetchAhead));
            link(records.crossing(k, i), records.crossing(k, i + 1), links);
        }
        if (curves[k].isClosed && last > 0)
            link(records.crossing(k, last), records.crossing(k, 0), links);
    }
    return links;
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

NodeSample sampleAt(const SegmentMeeting &meeting, SampledCurves &sampled)
{
    NodeSample sample;
    sample.curvePoint.position = meeting.place;
    for (int end : {meeting.a, meeting.a + 1, meeting.b, meeting.b + 1})
        sample.normal += sampled.normal(end);
    normalizeUnlessZero(sample.normal);
    return sample;
}

} // namespace

// Each node is written to once, with all it has: there are too many to come back to.
NodeBlock nodesOfCrossings(const CrossingSearch &search, const QList<OrvaneCurve *> &curves,
                           SampledCurves &sampled)
{
    const QVector<Crossing> &crossings = search.crossings();
    const QVector<LinksOfNode> links = linksAlongCurves(crossings, sampled.curves());
    NodeBlock nodes;
    nodes.reserve(std::size_t(crossings.size()));
    IntersectionNode *const first = nodes.data(); // of all, those to come too
    for (int i = 0; i < crossings.size(); ++i) {
        if (i + FetchAhead < crossings.size())
            sampled.fetchNormal(search.meetings().at(i + FetchAhead).b);
        nodes.emplace_back(sampleAt(search.meetings().at(i), sampled));
        nodes.back().addCurve(curves[crossings.at(i).curveA]);
        nodes.back().addCurve(curves[crossings.at(i).curveB]);
        for (int n = 0; n < links.at(i).count; ++n)
            listNeighbour(nodes.back(), first + links.at(i).numbers[n]);
    }
    return nodes;
}

void normalizeUnlessZero(Vector &sum)
{
    if (sum.LengthSquared() > MinimumNormal)
        sum.Normalize();
}
