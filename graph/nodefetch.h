// SPDX-License-Identifier: MIT
#pragma once

#include "graph/intersectionnode.h"

const int FetchAhead = 8; // nodes, for memory to answer before a walk comes to the node

//! Starts to bring what walks read of a node close to the processor. Changes nothing.
inline void fetchNode(const IntersectionNode *node)
{
#if defined(__GNUC__)
    __builtin_prefetch(&node->neighbours);
    __builtin_prefetch(&node->vertexIndex);
    __builtin_prefetch(&node->outgoingUsed);
#else
    Q_UNUSED(node)
#endif
}

//! The same for all its neighbours. The node itself should be close already.
inline void fetchNeighbours(const IntersectionNode *node)
{
    for (const IntersectionNode *neighbour : node->neighbours) {
        if (neighbour)
            fetchNode(neighbour);
    }
}
