// SPDX-License-Identifier: MIT
#include "graph/nodemerge.h"

#include "graph/intersectionnode.h"

#include <orvane/base/timer.h>

#include <QSet>
#include <QVector>

namespace {

QVector<IntersectionNode *> closeNeighbours(const IntersectionNode &node, float limitSquared)
{
    QVector<IntersectionNode *> close;
    for (IntersectionNode *neighbour : node.neighbours) {
        if ((node.position() - neighbour->position()).LengthSquared() < limitSquared)
            close.append(neighbour);
    }
    return close;
}

} // namespace

void mergeCloseNodes(QList<IntersectionNode *> &nodes, float mergeDistance)
{
    QSet<IntersectionNode *> absorbed;
    for (IntersectionNode *node : qAsConst(nodes)) {
        if (absorbed.contains(node))
            continue;
        for (IntersectionNode *close : closeNeighbours(*node, mergeDistance * mergeDistance)) {
            node->merge(close);
            close->unlinkAll();
            absorbed.insert(close);
        }
    }
    QList<IntersectionNode *> kept;
    kept.reserve(nodes.size() - absorbed.size());
    for (IntersectionNode *node : qAsConst(nodes)) {
        if (!absorbed.contains(node))
            kept.append(node);
    }
    nodes = kept;
    orvane::Timer::LogAll();
}
