// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/directededges.h"
#include "mesh/facetracing.h"
#include "mesh/meshbuilder.h"
#include "tests/mesh/plainpiece.h"
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

testing::AssertionResult hasMarksOf(const DirectedEdges &edges, const RecursiveTracing &reference)
{
    const PieceGraph &graph = edges.graph();
    for (int i = 0; i < graph.nodes.size(); ++i) {
        for (int k = 0; k < graph.edgeCount(i); ++k) {
            const int place = edges.placeOf(graph.begin(i) + k);
            if (edges.used.has(place) != reference.outgoing[i][k])
                return testing::AssertionFailure() << "outgoing of node " << i << ", " << k;
            const int back = edges.arrival(place);
            const bool isArrivedBy =
                back >= 0 && edges.arrival(edges.placeOf(back)) == graph.begin(i) + k;
            const bool arrived = isArrivedBy && edges.arrived.has(edges.placeOf(back));
            if (arrived != reference.incoming[i][k])
                return testing::AssertionFailure() << "incoming of node " << i << ", " << k;
        }
    }
    return testing::AssertionSuccess();
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

// Links that lead one way only or nowhere, or are listed twice; a node that is its own neighbour.
TestGraph brokenGraph(std::mt19937 &random)
{
    TestGraph graph = random() % 2u == 0u ? tangledGraph(random) : planarGraph(random);
    for (unsigned fault = 1 + random() % 3u; fault > 0; --fault) {
        IntersectionNode *node = graph[int(random() % unsigned(graph.count()))];
        if (node->neighbourCount() == 0)
            continue;
        IntersectionNode *other =
            random() % 4u == 0u ? nullptr : graph[int(random() % unsigned(graph.count()))];
        node->neighbours[int(random() % unsigned(node->neighbourCount()))] = other;
    }
    return graph;
}

MeshBuilder builderOf(const PieceGraph &graph)
{
    MeshBuilder builder;
    builder.positions = graph.positions;
    builder.normals = graph.normals;
    return builder;
}

// Some start with marks that earlier walks left in the nodes.
void compareWalks(const TestGraph &graph, std::mt19937 &random, Tally &tally)
{
    const int maxEdges = 3 + int(random() % 10u);
    const QVector<QPair<int, int>> tries = edgesToTry(graph, random);
    const int half = random() % 2u == 0u ? tries.size() / 2 : tries.size();
    RecursiveTracing reference(graph, maxEdges);
    for (const QPair<int, int> &part : {qMakePair(0, half), qMakePair(half, tries.size())}) {
        DirectedEdges edges(plainPiece(graph.nodes().toVector()));
        MeshBuilder builder = builderOf(edges.graph());
        FaceTracing tracing(edges, builder, maxEdges);
        for (int i = part.first; i < part.second; ++i) {
            const QVector<int> expected = reference.trace(tries[i].first, tries[i].second);
            const int edge = edges.graph().begin(tries[i].first) + tries[i].second;
            ASSERT_EQ(tracing.walkFace(edge), expected);
            ASSERT_TRUE(hasMarksOf(edges, reference));
            ++tally.walks;
            tally.faces += !expected.isEmpty();
        }
        edges.writeMarks();
        ASSERT_TRUE(hasFlagsOf(graph, reference));
    }
    tally.stuck += reference.stuckWalks();
}

void compareTraces(const TestGraph &graph, std::mt19937 &random, Tally &tally)
{
    const int maxEdges = 3 + int(random() % 10u);
    DirectedEdges edges(plainPiece(graph.nodes().toVector()));
    MeshBuilder builder = builderOf(edges.graph());
    MeshBuilder expected = builder;
    RecursiveTracing reference(graph, maxEdges);
    FaceTracing tracing(edges, builder, maxEdges);
    for (int i = 0; i < graph.count(); ++i) {
        for (int k = 0; k < graph[i]->neighbourCount(); ++k) {
            const QVector<int> face = reference.trace(i, k);
            if (face.size() > 2)
                expected.addPolygon(face);
            tracing.traceFace(edges.graph().begin(i) + k);
            ASSERT_EQ(builder.faces, expected.faces);
            ASSERT_TRUE(hasMarksOf(edges, reference));
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
        const bool isBroken = make == brokenGraph;
        ASSERT_TRUE(isBroken || isSound(graph.nodes()));
        if (run % 4 != 0 && !isBroken) { // walks are defined for any order of neighbours
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

TEST(RecursiveTracing, walksOverBrokenGraphsAgreeInFacesAndEveryFlag)
{
    compareMany(brokenGraph, compareWalks, 1000);
}
