// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/scenebuild.h"

#include "graph/graphwalk.h"
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"
#include "tests/operation/agreement/planarscenes.h"
#include "tests/support/dialoganswer.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace {

PlanarGraph graphOf(IntersectionNode *seed)
{
    PlanarGraph graph;
    walkGraph(seed, [&graph](const IntersectionNode *node) {
        const int vertex = node->vertexIndex;
        graph.positions.resize(qMax(graph.positions.size(), vertex + 1));
        graph.positions[vertex] = node->position();
        for (const IntersectionNode *neighbour : node->neighbours) {
            if (vertex < neighbour->vertexIndex)
                graph.links.append({vertex, neighbour->vertexIndex});
        }
    });
    return graph;
}

QVector<QVector<int>> polygonsOfMesh(const orvane::Mesh &mesh)
{
    const orvane::PolygonList &list = mesh.Polygons();
    QVector<QVector<int>> polygons;
    for (int i = 0; i < list.Count(); ++i)
        polygons.append(list.corners.mid(list.firstCorner[i], list.CornerCount(i)));
    return polygons;
}

} // namespace

QVector<ScenePiece> buildScene(const PlanarScene &scene, int maximumEdges)
{
    orvane::Kernel()->Undos().Clear();
    orvane::Kernel()->Scene()->Clear();
    Sheet sheet(PlanarSheetSize);
    for (const PlanarStroke &stroke : scene.strokes) {
        if (stroke.closed)
            sheet.loop(stroke.places);
        else
            sheet.stroke(stroke.places);
    }
    const DialogAnswer accepter(QStringLiteral("accept"));
    ManualRetopoOperation operation(sheet.curves(), maximumEdges, scene.mergeDistance, 0.05f,
                                    scene.overrun, scene.selfIntersections);
    orvane::Kernel()->DoOperation(&operation, false, false);

    QVector<ScenePiece> pieces;
    int built = 0;
    for (int i = 0; i < operation.Subgraphs().size(); ++i) {
        ScenePiece piece;
        piece.graph = graphOf(operation.Subgraphs()[i]);
        if (lastRunReport().pieces[i].outcome == PieceReport::Built)
            piece.polygons = polygonsOfMesh(*operation.AddGeometry()[built++]->CurrentLevel());
        pieces.append(piece);
    }
    return pieces;
}
