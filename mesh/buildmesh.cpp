// SPDX-License-Identifier: MIT
#include "mesh/buildmesh.h"

#include "graph/graphwalk.h"
#include "graph/nodefetch.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"

#include <orvane/geometry/mesh.h>

namespace {

// Answers the nodes by vertex number.
QVector<IntersectionNode *> numberVertices(IntersectionNode *start, MeshBuilder &builder)
{
    QVector<IntersectionNode *> nodes;
    walkGraph(start, [&nodes, &builder](IntersectionNode *node) {
        node->vertexIndex = nodes.size();
        nodes.append(node);
        builder.positions.append(node->position());
        builder.normals.append(node->normal);
    });
    return nodes;
}

// A start with a single neighbour makes no face, deliberately. Any other loose end is left out: a
// walk that does not pass it meets the rest in the same order.
void traceFaces(const QVector<IntersectionNode *> &nodes, MeshBuilder &builder, int maxEdges)
{
    if (nodes.isEmpty() || nodes.first()->neighbourCount() < 2)
        return;
    for (int place = 0; place < nodes.size(); ++place) {
        fetchNode(nodes[qMin(place + 2 * FetchAhead, nodes.size() - 1)]);
        fetchNeighbours(nodes[qMin(place + FetchAhead, nodes.size() - 1)]);
        IntersectionNode *node = nodes[place];
        if (node->neighbourCount() < 2)
            continue;
        for (int i = 0; i < node->neighbourCount(); ++i)
            traceFace(node, i, builder, maxEdges);
    }
}

BuiltPiece tracePiece(IntersectionNode *start, int maxEdges, MeshBuilder &builder)
{
    const QVector<IntersectionNode *> nodes = numberVertices(start, builder);
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
