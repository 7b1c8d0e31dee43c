// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/buildmesh.h"
#include "mesh/neighbourordering.h"
#include "tests/support/dialoganswer.h"
#include "tests/support/graphchecks.h"
#include "tests/support/graphs.h"
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/timelimit.h"

#include <orvane/geometry/mesh.h>

#include <QElapsedTimer>
#include <QScopedPointer>

#include <algorithm>
#include <iostream>
#include <limits>

using orvane::Mesh;
using orvane::Vector;

namespace {

class BuildMesh : public SceneCleaner
{
protected:
    // Sorts and builds. Faults are accepted: these tests look at what is built.
    void build(const TestGraph &graph, int maxEdges, int start = 0)
    {
        DialogAnswer answer(QStringLiteral("accept"));
        orderNeighbours(graph[start]);
        piece = buildMeshFromGraph(graph[start], maxEdges);
        mesh.reset(piece.mesh);
        EXPECT_TRUE(isSound(graph.nodes()));
        vertexOf.clear();
        for (int i = 0; i < graph.count(); ++i)
            vertexOf.append(graph[i]->vertexIndex);
    }

    // Corners of the polygons as vertex sets of the graph's node numbers, ascending.
    QVector<QVector<int>> polygons() const
    {
        QVector<QVector<int>> result;
        if (!mesh)
            return result;
        const orvane::PolygonList &list = mesh->Polygons();
        for (int p = 0; p < list.Count(); ++p) {
            QVector<int> nodes;
            for (int i = 0; i < list.CornerCount(p); ++i)
                nodes.append(vertexOf.indexOf(list.Corners(p)[i]));
            std::sort(nodes.begin(), nodes.end());
            result.append(nodes);
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    // All mesh faces counter-clockwise seen from +z?
    void expectFacesUp() const
    {
        for (int face = 0; face < mesh->FaceCount(); ++face)
            EXPECT_GT(mesh->FaceNormal(face).z, 0.99f) << "face " << face;
    }

    BuiltPiece piece;
    QScopedPointer<Mesh> mesh;
    QVector<int> vertexOf; // by node number
};

using Polygons = QVector<QVector<int>>;

// The four cells of a 2 x 2 grid.
const Polygons GridCells{{0, 1, 3, 4}, {1, 2, 4, 5}, {3, 4, 6, 7}, {4, 5, 7, 8}};

// The outer boundary of a 2 x 2 grid, clockwise.
const QVector<int> Outside{0, 3, 6, 7, 8, 5, 2, 1};

} // namespace

TEST_F(BuildMesh, aSquareOfFourNodesGivesOneCounterClockwiseQuadAndItsOuterCycleIsRejected)
{
    const TestGraph graph = squareGraph();
    build(graph, 4);
    ASSERT_TRUE(mesh);
    EXPECT_TRUE(mesh->IsQuads());
    EXPECT_EQ(mesh->FaceCount(), 1);
    EXPECT_EQ(piece.builderFaces, 1);
    EXPECT_EQ(polygons(), Polygons({{0, 1, 2, 3}}));
    expectFacesUp();
    EXPECT_EQ(markedOutgoing(graph).size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(markedOutgoing(graph).contains({(i + 1) % 4, i})) << "outer edge";
}

TEST_F(BuildMesh, theSameSquareWithAtMostThreeEdgesGivesNoFaceAndNoMesh)
{
    const TestGraph graph = squareGraph();
    build(graph, 3);
    EXPECT_FALSE(mesh);
    EXPECT_EQ(piece.builderFaces, 0);
    EXPECT_EQ(piece.nodes, 4);
    EXPECT_TRUE(markedOutgoing(graph).isEmpty());
    EXPECT_TRUE(markedIncoming(graph).isEmpty());
}

TEST_F(BuildMesh, aGridOfTwoByTwoGivesFourQuadsAndItsOuterBoundaryIsRejectedByTurnAndByLength)
{
    for (int limit : {4, 7, 8, 100}) {
        const TestGraph graph = gridGraph(2, 2);
        build(graph, limit);
        ASSERT_TRUE(mesh) << limit;
        EXPECT_TRUE(mesh->IsQuads());
        EXPECT_EQ(polygons(), GridCells) << limit;
        expectFacesUp();
        EXPECT_EQ(markedOutgoing(graph).size(), 16) << limit;
        for (int i = 0; i < 8; ++i)
            EXPECT_FALSE(markedOutgoing(graph).contains({Outside[i], Outside[(i + 1) % 8]}));
    }
}

TEST_F(BuildMesh, aDanglingEdgeIntoAFaceSparesItWhereTheWalkFromItsOwnCornerClosesIt)
{
    for (int corner : {0, 1, 3, 4}) {
        TestGraph graph = gridGraph(2, 2);
        graph.addLooseEnd(corner, {0.5f, 0.5f, 0.0f});
        build(graph, 5);
        EXPECT_EQ(polygons(), GridCells) << corner;
        EXPECT_EQ(piece.holes.total(), 0) << corner;
        EXPECT_EQ(piece.nodes, 10);
        EXPECT_EQ(mesh->VertexCount(), 10) << "a loose end is a vertex all the same";
    }
}

TEST_F(BuildMesh, aFaceWithDanglingEdgesAtTwoCornersStaysAHoleAndItsNeighboursAreUnaffected)
{
    for (int other : {1, 3, 4}) {
        TestGraph graph = gridGraph(2, 2);
        graph.addLooseEnd(0, {0.4f, 0.45f, 0.0f});
        graph.addLooseEnd(other, {0.5f, 0.55f, 0.0f});
        build(graph, 5);
        EXPECT_EQ(polygons(), GridCells.mid(1)) << other;
        EXPECT_EQ(piece.holes.dangling, 1) << other;
        EXPECT_EQ(piece.holes.total(), 1) << other;
    }
}

TEST_F(BuildMesh, aStartNodeWithASingleNeighbourGivesNoFacesAtAll)
{
    TestGraph graph = squareGraph();
    const int end = graph.addLooseEnd(0, {-1, -1, 0});
    build(graph, 5, end);
    EXPECT_FALSE(mesh);
    EXPECT_EQ(piece.builderFaces, 0);
    EXPECT_EQ(piece.nodes, 5);
    EXPECT_TRUE(markedOutgoing(graph).isEmpty());
    EXPECT_EQ(graph[end]->vertexIndex, 0);

    build(graph, 5, 2); // or the graph itself would be to blame
    EXPECT_EQ(polygons(), Polygons({{0, 1, 2, 3}}));
}

TEST_F(BuildMesh, aFaceOfExactlyTheLimitsEdgesIsAcceptedAndOneOfOneMoreIsNot)
{
    for (int edges = 3; edges <= 12; ++edges) {
        build(ringGraph(edges), edges);
        EXPECT_TRUE(mesh) << edges;
        EXPECT_EQ(piece.holes.total(), 0) << edges;
        build(ringGraph(edges), edges - 1);
        EXPECT_FALSE(mesh) << edges;
        EXPECT_EQ(piece.holes.overLimit, 1) << edges;
        EXPECT_EQ(piece.holes.total(), 1) << edges;
    }
}

TEST_F(BuildMesh, aNullStartGivesAnEmptyAnswer)
{
    const BuiltPiece nothing = buildMeshFromGraph(nullptr, 5);
    EXPECT_EQ(nothing.mesh, nullptr);
    EXPECT_EQ(nothing.nodes, 0);
    EXPECT_EQ(nothing.builderFaces, 0);
    EXPECT_EQ(nothing.holes.total(), 0);
}

TEST_F(BuildMesh, nodesAreNumberedDepthFirstTheLastNeighbourComingNext)
{
    const TestGraph graph = gridGraph(2, 2);
    build(graph, 4);
    QVector<IntersectionNode *> stack{graph[0]};
    QVector<IntersectionNode *> expected;
    while (!stack.isEmpty()) {
        IntersectionNode *node = stack.takeLast();
        if (expected.contains(node))
            continue;
        expected.append(node);
        stack += node->neighbours.toVector();
    }
    for (int i = 0; i < expected.size(); ++i)
        EXPECT_EQ(expected[i]->vertexIndex, i);
    for (int i = 0; i < graph.count(); ++i)
        EXPECT_EQ(mesh->VertexPosition(vertexOf[i]), graph[i]->position());
}

TEST_F(BuildMesh, theMeshIsFinishedForUse)
{
    TestGraph graph = squareGraph();
    graph[1]->normal = {0.5f, 0, 2};
    build(graph, 4);
    EXPECT_EQ(mesh->FaceNormal(0), Vector(0, 0, 1));
    EXPECT_EQ(mesh->VertexNormal(vertexOf[1]), Vector(0.5f, 0, 2)) << "normals that were set stay";
    EXPECT_EQ(mesh->Polygons().Count(), 1);
    EXPECT_EQ(mesh->Edges().size(), 4);
    EXPECT_EQ(mesh->Bounds().maximum, Vector(1, 1, 0));
    EXPECT_FALSE(mesh->IsChanged());
}

TEST_F(BuildMesh, facesWithoutNormalsAreNotMade)
{
    const TestGraph graph = squareGraph();
    for (int i = 0; i < 4; ++i)
        graph[i]->normal = Vector();
    build(graph, 4);
    EXPECT_FALSE(mesh);
}

TEST_F(BuildMesh, aClosedSurfaceHasAllItsFaces)
{
    const TestGraph graph = cubeGraph();
    build(graph, 4);
    ASSERT_TRUE(mesh);
    EXPECT_TRUE(mesh->IsQuads());
    EXPECT_EQ(mesh->FaceCount(), 6);
    EXPECT_EQ(piece.holes.total(), 0);
    EXPECT_EQ(markedOutgoing(graph).size(), 24);
    for (int face = 0; face < 6; ++face) {
        const Vector corner = mesh->VertexPosition(mesh->VertexIndex(face, 0));
        EXPECT_GT(orvane::Dot(mesh->FaceNormal(face), corner), 0.9f) << "looks outwards";
    }
}

TEST_F(BuildMesh, aMeshThatTheUserDiscardsIsNotThereButItsFacesWereTraced)
{
    // Two squares that meet in a corner: its vertex has four boundary edges.
    TestGraph graph = squareGraph();
    for (const Vector &corner : {Vector(2, 1, 0), Vector(2, 2, 0), Vector(1, 2, 0)})
        graph.add(corner);
    graph.linkRing({2, 4, 5, 6});
    orderNeighbours(graph[0]);
    DialogAnswer answer(QStringLiteral("close"));
    const BuiltPiece discarded = buildMeshFromGraph(graph[0], 4);
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(discarded.mesh, nullptr);
    EXPECT_EQ(discarded.builderFaces, 2);
}

TEST_F(BuildMesh, aConcaveFaceIsSplitAndStillCoversItsArea)
{
    const LogCatcher log;
    build(notchedHexagon(), 6);
    ASSERT_TRUE(mesh);
    EXPECT_EQ(log.count(), 6);
    EXPECT_EQ(mesh->FaceCount(), 4);
    EXPECT_EQ(piece.builderFaces, 4);
    expectFacesUp();
}

TEST_F(BuildMesh, positionsAndNormalsThatAreNotNumbersDoNotRunAway)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    for (float odd : {nan, infinity, -infinity}) {
        for (int node = 0; node < 9; ++node) {
            const TestGraph oddPosition = gridGraph(2, 2);
            oddPosition[node]->position() = {odd, 0, 0};
            build(oddPosition, 1000000);
            EXPECT_EQ(piece.nodes, 9);
            const TestGraph oddNormal = gridGraph(2, 2);
            oddNormal[node]->normal = {0, 0, odd};
            build(oddNormal, 1000000);
            EXPECT_EQ(piece.nodes, 9);
        }
        const TestGraph ring = ringGraph(500);
        for (int i = 0; i < ring.count(); ++i)
            ring[i]->position() = {odd, odd, odd};
        build(ring, 1000000);
        EXPECT_EQ(piece.nodes, 500);
    }
}

TEST_F(BuildMesh, aCycleOfTwoThousandEdgesIsQuick)
{
    const TestGraph graph = ringGraph(2000, 100.0f);
    QElapsedTimer timer;
    timer.start();
    build(graph, 1000000);
    std::cout << "2000 edges: " << timer.elapsed() << " ms" << std::endl;
    EXPECT_LT(timer.elapsed(), timeLimit(2000));
    ASSERT_TRUE(mesh);
    EXPECT_EQ(mesh->FaceCount(), 1998);
}
