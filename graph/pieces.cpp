// SPDX-License-Identifier: MIT
#include "graph/pieces.h"

#include "graph/nodemarks.h"

#include <orvane/base/timer.h>

#include <QVector>

namespace {

const int NotReached = 0; // pieces are numbered from 1 on

// Gives every node that can be reached from start the number of its piece.
void reach(IntersectionNode *start, int piece, NodeMarks &pieceOf)
{
    QVector<IntersectionNode *> queue{start};
    pieceOf.set(start, piece);
    while (!queue.isEmpty()) {
        const IntersectionNode *node = queue.takeLast();
        for (IntersectionNode *neighbour : node->neighbours) {
            if (!neighbour || pieceOf.of(neighbour) != NotReached)
                continue;
            pieceOf.set(neighbour, piece);
            queue.append(neighbour);
        }
    }
}

} // namespace

void findPieces(const QList<IntersectionNode *> &nodes, QList<IntersectionNode *> &seeds)
{
    seeds.clear();
    NodeMarks pieceOf(nodes.size() + 1);
    for (IntersectionNode *node : nodes)
        pieceOf.set(node, NotReached);
    for (IntersectionNode *node : nodes) {
        const int piece = pieceOf.of(node);
        if (piece == NotReached) {
            seeds.append(node);
            reach(node, seeds.size(), pieceOf);
            continue;
        }
        IntersectionNode *&seed = seeds[piece - 1];
        if (seed->neighbourCount() < 2 && node->neighbourCount() >= 2)
            seed = node;
    }
    orvane::Timer::LogAll();
}
