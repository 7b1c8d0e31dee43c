// SPDX-License-Identifier: MIT
#include "graph/pieces.h"

#include "graph/intersectionnode.h"

#include <orvane/base/timer.h>

#include <QHash>
#include <QVector>

namespace {

const int NotReached = -1;

// Gives every node that can be reached from start the number of its piece.
void reach(IntersectionNode *start, int piece, QHash<IntersectionNode *, int> &pieceOf)
{
    QVector<IntersectionNode *> queue{start};
    pieceOf[start] = piece;
    while (!queue.isEmpty()) {
        const IntersectionNode *node = queue.takeLast();
        for (IntersectionNode *neighbour : node->neighbours) {
            const auto found = pieceOf.find(neighbour);
            if (found == pieceOf.end() || found.value() != NotReached)
                continue;
            found.value() = piece;
            queue.append(neighbour);
        }
    }
}

} // namespace

void findPieces(const QList<IntersectionNode *> &nodes, QList<IntersectionNode *> &seeds)
{
    seeds.clear();
    QHash<IntersectionNode *, int> pieceOf;
    pieceOf.reserve(nodes.size());
    for (IntersectionNode *node : nodes)
        pieceOf.insert(node, NotReached);
    for (IntersectionNode *node : nodes) {
        if (pieceOf.value(node) == NotReached) {
            reach(node, seeds.size(), pieceOf);
            seeds.append(node);
            continue;
        }
        IntersectionNode *&seed = seeds[pieceOf.value(node)];
        if (seed->neighbourCount() < 2 && node->neighbourCount() >= 2)
            seed = node;
    }
    orvane::Timer::LogAll();
}
