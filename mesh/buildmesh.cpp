// SPDX-License-Identifier: MIT
#include "mesh/buildmesh.h"

#include "mesh/directededges.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"

#include <orvane/geometry/mesh.h>

namespace {

// A start with a single neighbour makes no face, deliberately. Any other loose end is left out: a
// walk that does not pass it meets the rest in the same order.
void traceFaces(DirectedEdges &edges, MeshBuilder &builder, int maxEdges)
{
    const PieceGraph &graph = edges.graph();
    if (graph.nodes.isEmpty() || graph.edgeCount(0) < 2)
        return;
    FaceTracing tracing(edges, builder, maxEdges);
    for (int vertex = 0; vertex < graph.nodes.size(); ++vertex) {
        if (graph.edgeCount(vertex) < 2)
            continue;
        for (int edge = graph.begin(vertex); edge < graph.end(vertex); ++edge)
            tracing.traceFace(edge);
    }
}

BuiltPiece tracePiece(IntersectionNode *start, int maxEdges, MeshBuilder &builder)
{
    DirectedEdges edges(numberedPiece(start));
    builder.positions = edges.graph().positions;
    builder.normals = edges.graph().normals;
    traceFaces(edges, builder, maxEdges);
    edges.writeMarks();
    builder.faces.squeeze(); // the mesh is made beside them

    BuiltPiece piece;
    piece.nodes = edges.graph().nodes.size();
    piece.builderFaces = builder.faces.size();
    piece.holes = countHoles(edges, builder, maxEdges);
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
