// SPDX-License-Identifier: MIT
#pragma once

#include "mesh/holes.h"

class IntersectionNode;

namespace orvane {
class Mesh;
}

//! What came of one piece of the graph.
struct BuiltPiece
{
    orvane::Mesh *mesh = nullptr; // owned by the caller; null when none was made or kept
    int nodes = 0;
    int builderFaces = 0; // accepted, large and concave ones split
    HoleCounts holes;
};

//! Numbers the nodes that can be reached from start as vertices, traces their faces of at most
//! maxEdges edges and makes the mesh of them, finished for use. The nodes' neighbours are in
//! angular order. Null gives an empty answer.
BuiltPiece buildMeshFromGraph(IntersectionNode *start, int maxEdges);
