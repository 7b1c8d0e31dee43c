// SPDX-License-Identifier: MIT
#pragma once

#include "graph/fetch.h"
#include "graph/intersectionnode.h"

//! Starts to bring what walks read of a node close to the processor. Changes nothing.
inline void fetchNode(const IntersectionNode *node)
{
    fetch(&node->neighbours);
    fetch(&node->vertexIndex);
    fetch(&node->outgoingUsed);
}

//! The same for all its neighbours. The node itself should be close already.
inline void fetchNeighbours(const IntersectionNode *node)
{
    for (const IntersectionNode *neighbour : node->neighbours) {
        if (neighbour)
            fetchNode(neighbour);
    }
}
