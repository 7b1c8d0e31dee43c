// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"
#include "tests/mesh/recursivetracing.h"
#include "tests/support/graphchecks.h"
#include "tests/support/graphs.h"
#include "tests/support/shapes.h"

#include <algorithm>
#include <iostream>

using orvane::Vector;

namespace {

// What the random runs have met, so that a comparison that never saw a case is noticed.
struct Tally
{
    int walks = 0;
    int faces = 0;
    int stuck = 0;
};

Vector randomNormal(std::mt19937 &random)
{
    return random() % 8u == 0u ? Vector() : Vector(0, 0, 1) + randomVector(random, 0.7f);
}

// Any node with any other.
TestGraph tangledGraph(std::mt19937 &random)
{
    TestGraph graph;
    const int count = 4 + int(random() % 14u);
    for (int i = 0; i < count; ++i)
        graph.add(randomVector(random, 4.0f), randomNormal(random));
    const int links = count + int(random() % unsigned(2 * count));
    for (int i = 0; i < links; ++i)
        graph.link(int(random() % unsigned(count)), int(random() % unsigned(count)));
    return graph;
}

// A jittered grid with diagonals, without some of its edges, and with loose ends.
TestGraph planarGraph(std::mt19937 &random)
{
    const int columns = 2 + int(random() % 4u);
    const int rows = 2 + int(random() % 4u);
    TestGraph graph = gridGraph(columns, rows);
    for (int i = 0; i < graph.count(); ++i)
        graph[i]->position() += randomVector(random, 0.3f);
    for (int i = 0; i + columns + 2 < graph.count(); ++i) {
        if (i % (columns + 1) != columns && random() % 4u == 0u)
            graph.link(i, i + columns + 2);
    }
    const int whole = graph.count();
    for (int i = 0; i < whole; ++i) {
        IntersectionNode *node = graph[i];
        if (node->neighbourCount() > 1 && random() % 3u == 0u)
            node->removeNeighbourAt(int(random() % unsigned(node->neighbourCount())));
        if (random() % 6u == 0u)
            graph.addLooseEnd(i, node->position() + randomVector(random, 0.4f));
    }
    return graph;
}

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

testing::AssertionResult hasFlagsOf(const TestGraph &graph, const RecursiveTracing &reference)
{
    for (int i = 0; i < graph.count(); ++i) {
        if (graph[i]->incomingUsed.toVector() != reference.incoming[i])
            return testing::AssertionFailure() << "incomingUsed of node " << i;
        if (graph[i]->outgoingUsed.toVector() != reference.outgoing[i])
            return testing::AssertionFailure() << "outgoingUsed of node " << i;
    }
    return testing::AssertionSuccess();
}

// The face of one walk of the real tracing, with the frame that traceFace gives it.
QVector<int> walkedFace(const TestGraph &graph, int node, int edge, int maxEdges,
                        const MeshBuilder &builder)
{
    IntersectionNode *start = graph[node];
    if (start->outgoingUsed[edge])
        return {};
    QVector<int> face{node};
    start->outgoingUsed[edge] = true;
    if (walkFace(start->neighbours[edge], start, start, 1, maxEdges, face, builder))
        return face;
    start->outgoingUsed[edge] = false;
    return {};
}

// Every edge of every node, in an order of its own; some twice.
QVector<QPair<int, int>> edgesToTry(const TestGraph &graph, std::mt19937 &random)
{
    QVector<QPair<int, int>> edges;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < graph.count(); ++i) {
            for (int k = 0; k < graph[i]->neighbourCount(); ++k)
                edges.append({i, k});
        }
    }
    for (int i = edges.size() - 1; i > 0; --i)
        std::swap(edges[i], edges[int(random() % unsigned(i + 1))]);
    return edges;
}

void compareWalks(const TestGraph &graph, std::mt19937 &random, Tally &tally)
{
    const int maxEdges = 3 + int(random() % 10u);
    const MeshBuilder builder = builderOf(graph);
    RecursiveTracing reference(graph, maxEdges);
    const QVector<QPair<int, int>> edges = edgesToTry(graph, random);
    for (const QPair<int, int> &edge : edges) {
        const QVector<int> expected = reference.trace(edge.first, edge.second);
        ASSERT_EQ(walkedFace(graph, edge.first, edge.second, maxEdges, builder), expected);
        ASSERT_TRUE(hasFlagsOf(graph, reference));
        ++tally.walks;
        tally.faces += !expected.isEmpty();
    }
    tally.stuck += reference.stuckWalks();
}

void compareTraces(const TestGraph &graph, std::mt19937 &random, Tally &tally)
{
    const int maxEdges = 3 + int(random() % 10u);
    MeshBuilder builder = builderOf(graph);
    MeshBuilder expected = builder;
    RecursiveTracing reference(graph, maxEdges);
    for (int i = 0; i < graph.count(); ++i) {
        for (int k = 0; k < graph[i]->neighbourCount(); ++k) {
            const QVector<int> face = reference.trace(i, k);
            if (face.size() > 2)
                expected.addPolygon(face);
            traceFace(graph[i], k, builder, maxEdges);
            ASSERT_EQ(builder.faces, expected.faces);
            ASSERT_TRUE(hasFlagsOf(graph, reference));
            ++tally.walks;
            tally.faces += !face.isEmpty();
        }
    }
    tally.stuck += reference.stuckWalks();
}

void expectAllSeen(const Tally &tally)
{
    std::cout << tally.walks << " walks, " << tally.faces << " faces, " << tally.stuck
              << " walks stuck" << std::endl;
    EXPECT_GT(tally.faces, 100);
    EXPECT_GT(tally.stuck, 10);
    EXPECT_GT(tally.walks, 2 * tally.faces);
}

using Maker = TestGraph (*)(std::mt19937 &);
using Comparison = void (*)(const TestGraph &, std::mt19937 &, Tally &);

void compareMany(Maker make, Comparison compare, int runs)
{
    std::mt19937 random(testSeed());
    Tally tally;
    for (int run = 0; run < runs && !testing::Test::HasFatalFailure(); ++run) {
        SCOPED_TRACE("run " + std::to_string(run));
        const TestGraph graph = make(random);
        ASSERT_TRUE(isSound(graph.nodes()));
        if (run % 4 != 0) { // walks are defined for any order of neighbours
            for (int i = 0; i < graph.count(); ++i)
                graph[i]->sortNeighboursByAngle();
        }
        compare(graph, random, tally);
    }
    expectAllSeen(tally);
}

} // namespace

TEST(RecursiveTracing, walksOverPlanarGraphsAgreeInFacesAndEveryFlag)
{
    compareMany(planarGraph, compareWalks, 500);
}

TEST(RecursiveTracing, walksOverTangledGraphsAgreeInFacesAndEveryFlag)
{
    compareMany(tangledGraph, compareWalks, 500);
}

TEST(RecursiveTracing, tracesOverPlanarGraphsAgreeInFacesAndEveryFlag)
{
    compareMany(planarGraph, compareTraces, 500);
}

TEST(RecursiveTracing, tracesOverTangledGraphsAgreeInFacesAndEveryFlag)
{
    compareMany(tangledGraph, compareTraces, 500);
}
