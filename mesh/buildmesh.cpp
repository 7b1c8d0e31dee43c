// SPDX-License-Identifier: MIT
#include "mesh/buildmesh.h"

#include "graph/graphwalk.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"

#include <orvane/geometry/mesh.h>

namespace {

QVector<IntersectionNode *> nodesOf(IntersectionNode *start)
{
    QVector<IntersectionNode *> nodes;
    walkGraph(start, 0, [&nodes](IntersectionNode *node) { nodes.append(node); });
    return nodes;
}

void numberVertices(const QVector<IntersectionNode *> &nodes, MeshBuilder &builder)
{
    builder.positions.resize(nodes.size());
    builder.normals.resize(nodes.size());
    for (int i = 0; i < nodes.size(); ++i) {
        nodes[i]->vertexIndex = i;
        builder.positions[i] = nodes[i]->position();
        builder.normals[i] = nodes[i]->normal;
    }
}

// A start with a single neighbour makes no face, deliberately. Any other loose end is left out: a
// walk that does not pass it meets the rest in the same order.
void traceFaces(const QVector<IntersectionNode *> &nodes, MeshBuilder &builder, int maxEdges)
{
    if (nodes.isEmpty() || nodes.first()->neighbourCount() < 2)
        return;
    for (IntersectionNode *node : nodes) {
        if (node->neighbourCount() < 2)
            continue;
        for (int i = 0; i < node->neighbourCount(); ++i)
            traceFace(node, i, builder, maxEdges);
    }
}

BuiltPiece tracePiece(IntersectionNode *start, int maxEdges, MeshBuilder &builder)
{
    const QVector<IntersectionNode *> nodes = nodesOf(start);
    numberVertices(nodes, builder);
    traceFaces(nodes, builder, maxEdges);

    BuiltPiece piece;
    piece.nodes = nodes.size();
    piece.builderFaces = builder.faces.size();
    piece.holes = countHoles(nodes, builder, maxEdges);
    return piece;
}

} // namespace

BuiltPiece buildMeshFromGraph(IntersectionNode *start, int maxEdges)
{
    MeshBuilder builder;
    BuiltPiece piece = tracePiece(start, maxEdges, builder);
    if (!builder.faces.isEmpty())
        piece.mesh = builder.createMesh();
    if (piece.mesh) {
        piece.mesh->RecomputeNormals(true);
        piece.mesh->Update(true, 0);
        piece.mesh->SetChanged(false);
    }
    return piece;
}
