// SPDX-License-Identifier: MIT
#pragma once

#include "graph/nodemarks.h"

#include <QVector>

//! Visits each node that can be reached from start once, depth first: the neighbour pushed last,
//! so the last of its list, comes next. The visitor may reorder the neighbours of the node it is
//! given, and they are followed in the new order; it must not walk the same graph itself. A null
//! start visits nothing.
template <typename Visitor>
void walkGraph(IntersectionNode *start, Visitor visit)
{
    QVector<IntersectionNode *> stack{start};
    NodeMarks visited;
    while (!stack.isEmpty()) {
        IntersectionNode *node = stack.takeLast();
        if (!node || visited.has(node))
            continue;
        visited.set(node);
        visit(node);
        for (IntersectionNode *neighbour : qAsConst(node->neighbours)) {
            if (neighbour && !visited.has(neighbour))
                stack.append(neighbour);
        }
    }
}
