// SPDX-License-Identifier: MIT
#include "graph/nodemerge.h"

#include "graph/nodefetch.h"
#include "graph/nodemarks.h"

#include <orvane/base/timer.h>

#include <algorithm>

namespace {

ShortList<IntersectionNode *, 4> closeNeighbours(const IntersectionNode &node, float limitSquared)
{
    ShortList<IntersectionNode *, 4> close;
    for (IntersectionNode *neighbour : node.neighbours) {
        if ((node.position() - neighbour->position()).LengthSquared() < limitSquared)
            close.append(neighbour);
    }
    return close;
}

} // namespace

void mergeCloseNodes(QList<IntersectionNode *> &nodes, float mergeDistance)
{
    NodeMarks absorbed;
    bool any = false;
    for (int i = 0; i < nodes.size(); ++i) {
        if (i + FetchAhead < nodes.size())
            fetchNeighbours(nodes.at(i + FetchAhead));
        IntersectionNode *node = nodes.at(i);
        if (absorbed.has(node))
            continue;
        for (IntersectionNode *close : closeNeighbours(*node, mergeDistance * mergeDistance)) {
            node->merge(close);
            close->unlinkAll();
            absorbed.set(close);
            any = true;
        }
    }
    const auto isAbsorbed = [&absorbed](const IntersectionNode *node) {
        return absorbed.has(node);
    };
    if (any)
        nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isAbsorbed), nodes.end());
    orvane::Timer::LogAll();
}
