// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/directededges.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"
#include "mesh/neighbourordering.h"
#include "tests/mesh/plainpiece.h"
#include "tests/support/graphs.h"
#include "tests/support/timelimit.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <algorithm>
#include <iostream>
#include <limits>

using orvane::Vector;

namespace {

using Edges = QVector<QPair<int, int>>;

MeshBuilder builderOf(const TestGraph &graph)
{
    MeshBuilder builder;
    for (int i = 0; i < graph.count(); ++i) {
        graph[i]->vertexIndex = i;
        builder.positions.append(graph[i]->position());
        builder.normals.append(graph[i]->normal);
    }
    return builder;
}

// A graph with its neighbours in order and its nodes numbered. Each call traces on from the flags
// as the nodes have them.
struct Traced
{
    explicit Traced(TestGraph &&made) : graph(std::move(made)), builder(builderOf(graph))
    {
        for (int i = 0; i < graph.count(); ++i)
            graph[i]->sortNeighboursByAngle();
    }

    int edge(int from, int to) const { return graph[from]->indexOfNeighbour(graph[to]); }
    void trace(int from, int to, int maxEdges)
    {
        DirectedEdges edges(plainPiece(graph.nodes().toVector()));
        FaceTracing(edges, builder, maxEdges).traceFace(edges.graph().begin(from) + edge(from, to));
        edges.writeMarks();
    }
    void traceAll(int maxEdges)
    {
        DirectedEdges edges(plainPiece(graph.nodes().toVector()));
        FaceTracing tracing(edges, builder, maxEdges);
        for (int k = 0; k < int(edges.graph().targets.size()); ++k)
            tracing.traceFace(k);
        edges.writeMarks();
    }
    void setOutgoing(int from, int to) { graph[from]->outgoingUsed[edge(from, to)] = true; }

    TestGraph graph;
    MeshBuilder builder;
};

Edges edgesOfRing(const QVector<int> &ring)
{
    Edges edges;
    for (int i = 0; i < ring.size(); ++i)
        edges.append({ring[i], ring[(i + 1) % ring.size()]});
    std::sort(edges.begin(), edges.end());
    return edges;
}

using Faces = QList<QVector<int>>;

} // namespace

TEST(FaceTracing, aWalkGoesLeftAndMarksExactlyTheEdgesOfItsFace)
{
    Traced square(squareGraph());
    square.trace(0, 1, 4);
    EXPECT_EQ(square.builder.faces, Faces({{0, 1, 2, 3}}));
    EXPECT_EQ(markedOutgoing(square.graph), edgesOfRing({0, 1, 2, 3}));
    EXPECT_EQ(markedIncoming(square.graph), edgesOfRing({0, 1, 2, 3}));
}

TEST(FaceTracing, anEdgeThatBelongsToAFaceIsLeftAlone)
{
    Traced square(squareGraph());
    square.trace(0, 1, 4);
    for (int i = 0; i < 4; ++i)
        square.trace(i, (i + 1) % 4, 4);
    EXPECT_EQ(square.builder.faces.size(), 1);
}

TEST(FaceTracing, theOuterBoundaryIsRejectedFromEachOfItsEdgesAndLeavesThemFree)
{
    Traced square(squareGraph());
    for (int i = 0; i < 4; ++i)
        square.trace((i + 1) % 4, i, 100);
    EXPECT_TRUE(square.builder.faces.isEmpty());
    EXPECT_TRUE(markedOutgoing(square.graph).isEmpty());
    EXPECT_TRUE(markedIncoming(square.graph).isEmpty());
}

TEST(FaceTracing, aWalkThatGoesOverTheLimitClearsEveryFlag)
{
    for (int limit : {6, 2, 1, 0, -1, std::numeric_limits<int>::min()}) {
        Traced ring(ringGraph(7));
        ring.traceAll(limit);
        EXPECT_TRUE(ring.builder.faces.isEmpty()) << limit;
        EXPECT_TRUE(markedOutgoing(ring.graph).isEmpty()) << limit;
        EXPECT_TRUE(markedIncoming(ring.graph).isEmpty()) << limit;
    }
    Traced ring(ringGraph(7));
    ring.traceAll(std::numeric_limits<int>::max());
    EXPECT_EQ(ring.builder.faces.size(), 1);
}

TEST(FaceTracing, aWalkIntoALooseEndClearsEveryFlag)
{
    TestGraph graph = squareGraph();
    graph.addLooseEnd(2, {0.6f, 0.6f, 0.0f});
    Traced square(std::move(graph));
    square.trace(0, 1, 100);
    EXPECT_TRUE(square.builder.faces.isEmpty());
    EXPECT_TRUE(markedOutgoing(square.graph).isEmpty());
    EXPECT_TRUE(markedIncoming(square.graph).isEmpty());
}

TEST(FaceTracing, aFaceWithOneLooseEndIsMadeByTheWalkFromThatCorner)
{
    TestGraph graph = squareGraph();
    graph.addLooseEnd(2, {0.6f, 0.6f, 0.0f});
    Traced square(std::move(graph));
    square.traceAll(4);
    EXPECT_EQ(square.builder.faces, Faces({{2, 3, 0, 1}}));
    EXPECT_EQ(markedOutgoing(square.graph), edgesOfRing({0, 1, 2, 3}));
    EXPECT_EQ(markedIncoming(square.graph), edgesOfRing({0, 1, 2, 3}));
}

TEST(FaceTracing, aFaceWithLooseEndsAtTwoCornersIsNeverMade)
{
    TestGraph graph = squareGraph();
    graph.addLooseEnd(2, {0.6f, 0.6f, 0.0f});
    graph.addLooseEnd(0, {0.4f, 0.4f, 0.0f});
    Traced square(std::move(graph));
    square.traceAll(100);
    EXPECT_TRUE(square.builder.faces.isEmpty());
    EXPECT_TRUE(markedOutgoing(square.graph).isEmpty());
    EXPECT_TRUE(markedIncoming(square.graph).isEmpty());
}

TEST(FaceTracing, aWalkThatFindsEveryOtherEdgeTakenLeavesItsArrivalMarked)
{
    // Every way on from node 1 is taken, so that the walk 3, 0, 1 gets stuck there.
    Traced grid(gridGraph(2, 1));
    grid.setOutgoing(1, 2);
    grid.setOutgoing(1, 4);
    const Edges taken = markedOutgoing(grid.graph);
    grid.trace(3, 0, 10);
    EXPECT_TRUE(grid.builder.faces.isEmpty());
    EXPECT_EQ(markedOutgoing(grid.graph), taken);
    EXPECT_EQ(markedIncoming(grid.graph), Edges({{0, 1}}));

    // Nobody arrives along that edge any more, not even with the way on free again.
    grid.graph[1]->outgoingUsed[grid.edge(1, 2)] = false;
    grid.graph[1]->outgoingUsed[grid.edge(1, 4)] = false;
    for (int i : {0, 3, 4})
        grid.trace(i, i == 0 ? 1 : i == 3 ? 0 : 3, 10);
    EXPECT_TRUE(grid.builder.faces.isEmpty());
    EXPECT_TRUE(markedOutgoing(grid.graph).isEmpty());
    EXPECT_EQ(markedIncoming(grid.graph), Edges({{0, 1}}));

    // By the walk from node 1 itself the arrival would be the last: refused as well.
    grid.trace(1, 4, 10);
    EXPECT_TRUE(grid.builder.faces.isEmpty());
    EXPECT_EQ(markedIncoming(grid.graph), Edges({{0, 1}}));
}

TEST(FaceTracing, aWalkStuckAtItsFirstStepClearsItsOwnStart)
{
    Traced square(squareGraph());
    square.setOutgoing(1, 2);
    square.trace(0, 1, 10);
    EXPECT_EQ(markedOutgoing(square.graph), Edges({{1, 2}}));
    EXPECT_EQ(markedIncoming(square.graph), Edges({{0, 1}}));
}

TEST(FaceTracing, aWalkTakesTheNextFreeEdgeDownWhenTheFirstIsTaken)
{
    // Left turns would follow the edge between nodes 2 and 3, in either direction.
    Traced grid(gridGraph(1, 2));
    grid.setOutgoing(3, 2);
    grid.setOutgoing(2, 3);
    grid.trace(0, 1, 6);
    EXPECT_EQ(grid.builder.faces, Faces({{0, 1, 3, 5, 4, 2}}));
    EXPECT_EQ(markedIncoming(grid.graph), edgesOfRing({0, 1, 3, 5, 4, 2}));
}

TEST(FaceTracing, nullUnknownOrLooseArrivalsFailWithoutAMark)
{
    Traced null(squareGraph());
    Traced unknown(squareGraph());
    TestGraph withLooseEnd = squareGraph();
    withLooseEnd.addLooseEnd(0, {-1, -1, 0});
    Traced loose(std::move(withLooseEnd));
    const int edge = null.edge(0, 1);
    null.graph[0]->neighbours[edge] = nullptr;
    unknown.graph[0]->neighbours[edge] = unknown.graph[2];
    for (const auto &[traced, first] :
         {std::make_pair(&null, edge), {&unknown, edge}, {&loose, loose.edge(0, 4)}}) {
        DirectedEdges edges(plainPiece(traced->graph.nodes().toVector()));
        EXPECT_TRUE(FaceTracing(edges, traced->builder, 9).walkFace(first).isEmpty());
        edges.writeMarks();
        for (int i = 0; i < traced->graph.count(); ++i) {
            EXPECT_FALSE(traced->graph[i]->incomingUsed.contains(true));
            EXPECT_FALSE(traced->graph[i]->outgoingUsed.contains(true));
        }
    }
}

TEST(FaceTracing, innerMeansCounterClockwiseAboutTheMeanOfTheNormals)
{
    MeshBuilder builder = builderOf(squareGraph());
    EXPECT_TRUE(isInnerFace({0, 1, 2, 3}, builder));
    EXPECT_FALSE(isInnerFace({3, 2, 1, 0}, builder));
    builder.normals[1] = {0, 0, -2.5f};
    EXPECT_TRUE(isInnerFace({0, 1, 2, 3}, builder));
    builder.normals[1] = {0, 0, -3.5f}; // long normals weigh more
    EXPECT_FALSE(isInnerFace({0, 1, 2, 3}, builder));
    EXPECT_TRUE(isInnerFace({3, 2, 1, 0}, builder));
}

TEST(FaceTracing, aFaceThatDoesNotTurnEitherWayIsNotInner)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    MeshBuilder builder = builderOf(squareGraph());
    EXPECT_FALSE(isInnerFace({0, 1}, builder));
    EXPECT_FALSE(isInnerFace({0, 1, 2, 1}, builder));
    builder.normals.fill(Vector());
    EXPECT_FALSE(isInnerFace({0, 1, 2, 3}, builder));
    builder.normals.fill({1, 0, 0});
    EXPECT_FALSE(isInnerFace({0, 1, 2, 3}, builder));
    builder.normals.fill({nan, 0, 1});
    EXPECT_FALSE(isInnerFace({0, 1, 2, 3}, builder));
    EXPECT_FALSE(isInnerFace({3, 2, 1, 0}, builder));
}

TEST(FaceTracing, twoHundredThousandEdgesDoNotRunOutOfStack)
{
    const int edges = 200000;
    Traced ring(ringGraph(edges));
    QElapsedTimer timer;
    timer.start();
    ring.trace(0, edges - 1, 1000000);
    const qint64 outside = timer.elapsed();
    EXPECT_TRUE(markedOutgoing(ring.graph).isEmpty());
    EXPECT_TRUE(markedIncoming(ring.graph).isEmpty());

    timer.restart();
    ring.trace(0, 1, 1000000);
    std::cout << edges << " edges: outside " << outside << " ms, inside " << timer.elapsed()
              << " ms" << std::endl;
    EXPECT_LT(outside + timer.elapsed(), timeLimit(4000));
    for (int i = 0; i < edges; ++i) {
        ASSERT_TRUE(ring.graph[i]->outgoingUsed[ring.edge(i, (i + 1) % edges)]) << i;
        ASSERT_TRUE(ring.graph[i]->incomingUsed[ring.edge(i, (i + edges - 1) % edges)]) << i;
    }
}
