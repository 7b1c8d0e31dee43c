// SPDX-License-Identifier: MIT
#include "tests/support/graphchecks.h"

#include "graph/intersectionnode.h"

#include <QSet>

#include <string>

namespace {

std::string brokenLinkOf(const IntersectionNode &node)
{
    if (node.incomingUsed.size() != node.neighbours.size())
        return "incomingUsed is not as long as neighbours";
    if (node.outgoingUsed.size() != node.neighbours.size())
        return "outgoingUsed is not as long as neighbours";
    QSet<const IntersectionNode *> seen;
    for (const IntersectionNode *neighbour : node.neighbours) {
        if (!neighbour)
            return "a neighbour is null";
        if (neighbour == &node)
            return "it is its own neighbour";
        if (seen.contains(neighbour))
            return "a neighbour is listed twice";
        if (!neighbour->hasNeighbour(&node))
            return "a neighbour does not list it";
        seen.insert(neighbour);
    }
    return {};
}

std::string brokenCurveOf(const IntersectionNode &node)
{
    QSet<const orvane::OrvaneCurve *> seen;
    for (const orvane::OrvaneCurve *curve : node.curves) {
        if (!curve)
            return "a curve is null";
        if (seen.contains(curve))
            return "a curve is listed twice";
        seen.insert(curve);
    }
    return {};
}

} // namespace

testing::AssertionResult isSound(const QList<IntersectionNode *> &nodes)
{
    for (int i = 0; i < nodes.size(); ++i) {
        std::string broken = brokenLinkOf(*nodes[i]);
        if (broken.empty())
            broken = brokenCurveOf(*nodes[i]);
        if (!broken.empty())
            return testing::AssertionFailure() << "node " << i << ": " << broken;
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult isClosedUnderLinks(const QList<IntersectionNode *> &nodes)
{
    const QSet<IntersectionNode *> all(nodes.cbegin(), nodes.cend());
    for (int i = 0; i < nodes.size(); ++i) {
        for (IntersectionNode *neighbour : qAsConst(nodes[i]->neighbours)) {
            if (!all.contains(neighbour))
                return testing::AssertionFailure() << "node " << i << " links out of the list";
        }
    }
    return testing::AssertionSuccess();
}
