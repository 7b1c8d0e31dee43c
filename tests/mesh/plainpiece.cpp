// SPDX-License-Identifier: MIT
#include "tests/mesh/plainpiece.h"

#include "graph/intersectionnode.h"

#include <QHash>

PieceGraph plainPiece(const QVector<IntersectionNode *> &nodes)
{
    QHash<IntersectionNode *, int> numbers;
    for (IntersectionNode *node : nodes)
        numbers.insert(node, numbers.size());
    PieceGraph piece;
    for (IntersectionNode *node : nodes) {
        piece.add(node);
        for (IntersectionNode *neighbour : node->neighbours)
            piece.targets.push_back(numbers.value(neighbour, -1));
        piece.firstEdges.push_back(int(piece.targets.size()));
    }
    return piece;
}
