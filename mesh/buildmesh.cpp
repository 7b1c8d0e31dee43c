// SPDX-License-Identifier: MIT
#include "mesh/buildmesh.h"

#include "graph/graphwalk.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"

#include <orvane/geometry/mesh.h>

namespace {

QVector<IntersectionNode *> numberVertices(IntersectionNode *start, MeshBuilder &builder)
{
    QVector<IntersectionNode *> nodes;
    walkGraph(start, 0, [&](IntersectionNode *node) {
        node->vertexIndex = builder.positions.size();
        builder.positions.append(node->position());
        builder.normals.append(node->normal);
        nodes.append(node);
    });
    return nodes;
}

// A start with a single neighbour makes no face, deliberately: the walk does not pass loose ends.
void traceFaces(IntersectionNode *start, MeshBuilder &builder, int maxEdges)
{
    walkGraph(start, 2, [&](IntersectionNode *node) {
        for (int i = 0; i < node->neighbourCount(); ++i)
            traceFace(node, i, builder, maxEdges);
    });
}

} // namespace

BuiltPiece buildMeshFromGraph(IntersectionNode *start, int maxEdges)
{
    MeshBuilder builder;
    const QVector<IntersectionNode *> nodes = numberVertices(start, builder);
    traceFaces(start, builder, maxEdges);

    BuiltPiece piece;
    piece.nodes = nodes.size();
    piece.builderFaces = builder.faces.size();
    piece.holes = countHoles(nodes, builder, maxEdges);
    if (!builder.faces.isEmpty())
        piece.mesh = builder.createMesh();
    if (piece.mesh) {
        piece.mesh->RecomputeNormals(true);
        piece.mesh->Update(true, 0);
        piece.mesh->SetChanged(false);
    }
    return piece;
}
