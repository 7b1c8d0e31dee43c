// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/directededges.h"
#include "tests/mesh/plainpiece.h"
#include "tests/support/graphs.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <QSet>

using orvane::Vector;

namespace {

const int None = DirectedEdges::None;

// Sparse with loose ends, or dense; sometimes with one node that is a neighbour of all.
TestGraph soundGraph(std::mt19937 &random)
{
    TestGraph graph;
    const int count = 2 + int(random() % 60u);
    for (int i = 0; i < count; ++i)
        graph.add(randomVector(random, float(random() % 3u))); // all in one place, some times
    for (unsigned link = random() % unsigned(3 * count); link > 0; --link)
        graph.link(int(random() % unsigned(count)), int(random() % unsigned(count)));
    for (int i = 1; i < count && random() % 20u != 0u; ++i)
        graph.link(0, i);
    return graph;
}

int edgeOf(const PieceGraph &graph, int from, int to)
{
    const int i = graph.nodes[from]->indexOfNeighbour(graph.nodes[to]);
    return i < 0 ? None : graph.begin(from) + i;
}

// Looks every step up in the nodes.
void expectWholeCycles(const DirectedEdges &edges)
{
    const PieceGraph &graph = edges.graph();
    QSet<int> places;
    for (int run = 0; run < edges.runCount(); ++run) {
        ASSERT_LT(edges.runStart(run), edges.runEnd(run));
        for (int place = edges.runStart(run); place < edges.runEnd(run); ++place) {
            const int from = edges.vertices()[place];
            const int to = edges.vertices()[place + 1];
            const int edge = edgeOf(graph, from, to);
            ASSERT_NE(edge, None);
            ASSERT_EQ(edges.placeOf(edge), place);
            ASSERT_EQ(edges.arrival(place), edgeOf(graph, to, from));
            ASSERT_EQ(edges.arrivalMark(place), place);
            ASSERT_EQ(edges.isBarred(place), graph.edgeCount(to) < 2);
            const bool isLast = place + 1 == edges.runEnd(run);
            ASSERT_EQ(edges.placeOf(graph.below(to, edges.arrival(place))),
                      isLast ? edges.runStart(run) : place + 1);
            places.insert(place);
        }
    }
    EXPECT_EQ(places.size(), int(graph.targets.size()));
}

int plainStop(const DirectedEdges &edges, int run, int place)
{
    while (place + 1 < edges.runEnd(run) && !edges.isBarred(place) && !edges.arrived.has(place)
           && !edges.used.has(place + 1))
        ++place;
    return place;
}

} // namespace

TEST(DirectedEdges, aSquareHasARunInsideAndOneAround)
{
    const TestGraph square = squareGraph();
    for (int i = 0; i < 4; ++i)
        square[i]->sortNeighboursByAngle();
    const DirectedEdges edges(plainPiece(square.nodes().toVector()));
    ASSERT_EQ(edges.runCount(), 2);
    EXPECT_EQ(edges.runStart(0), 0);
    EXPECT_EQ(edges.runEnd(0), 4);
    EXPECT_EQ(edges.runEnd(1), edges.runStart(1) + 4);
    EXPECT_EQ(edges.vertices()[4], 0);
    EXPECT_EQ(edges.nextStop(0), 3);
}

TEST(DirectedEdges, aPieceWithoutLinksHasNoRun)
{
    TestGraph graph;
    graph.add({0, 0, 0});
    EXPECT_EQ(DirectedEdges(plainPiece(graph.nodes().toVector())).runCount(), 0);
    EXPECT_EQ(DirectedEdges(PieceGraph()).runCount(), 0);
}

TEST(DirectedEdges, runsOfRandomGraphsAreWholeCycles)
{
    std::mt19937 random(testSeed());
    for (int run = 0; run < 400 && !HasFatalFailure(); ++run) {
        const TestGraph graph = soundGraph(random);
        expectWholeCycles(DirectedEdges(plainPiece(graph.nodes().toVector())));
    }
}

TEST(DirectedEdges, stopsAreWhereAPlainLookFindsThem)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const TestGraph graph = soundGraph(random);
        DirectedEdges edges(plainPiece(graph.nodes().toVector()));
        for (int run = 0; run < edges.runCount(); ++run) {
            for (int place = edges.runStart(run); place < edges.runEnd(run); ++place) {
                if (random() % 50u == 0u)
                    edges.arrived.set(place);
                if (random() % 50u == 0u)
                    edges.used.set(place);
            }
        }
        for (int run = 0; run < edges.runCount(); ++run) {
            for (int place = edges.runStart(run); place < edges.runEnd(run); ++place)
                ASSERT_EQ(edges.nextStop(place), plainStop(edges, run, place));
        }
    }
}

TEST(DirectedEdges, linksThatAreNotSymmetricStopEveryWalk)
{
    const TestGraph ring = ringGraph(5);
    ring[3]->neighbours[0] = ring[1];
    const DirectedEdges edges(plainPiece(ring.nodes().toVector()));
    for (int edge = 0; edge < 10; ++edge) {
        const int place = edges.placeOf(edge);
        EXPECT_EQ(edges.nextStop(place), place);
        const int from = edges.vertices()[place];
        const int to = edges.graph().target(edge);
        EXPECT_EQ(edges.arrival(place), edgeOf(edges.graph(), to, from));
        EXPECT_EQ(edges.isBarred(place), edges.arrival(place) == None);
    }
}

TEST(DirectedEdges, bothMarksOfALinkThatIsListedTwiceAreOne)
{
    const TestGraph ring = ringGraph(5);
    for (IntersectionNode *node : {ring[1], ring[2]}) {
        node->neighbours.append(node == ring[1] ? ring[2] : ring[1]);
        node->outgoingUsed.append(false);
        node->incomingUsed.append(false);
    }
    const DirectedEdges edges(plainPiece(ring.nodes().toVector()));
    const int first = edges.placeOf(edgeOf(edges.graph(), 1, 2));
    const int second = edges.placeOf(edges.graph().end(1) - 1);
    ASSERT_NE(first, second);
    EXPECT_EQ(edges.arrivalMark(first), first);
    EXPECT_EQ(edges.arrivalMark(second), first);
}

TEST(DirectedEdges, marksAreReadFromTheNodesAndWrittenBack)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const TestGraph graph = soundGraph(random);
        for (int i = 0; i < graph.count(); ++i) {
            for (int k = 0; k < graph[i]->neighbourCount(); ++k) {
                graph[i]->outgoingUsed[k] = random() % 3u == 0u;
                graph[i]->incomingUsed[k] = random() % 3u == 0u;
            }
        }
        const auto outgoing = markedOutgoing(graph);
        const auto incoming = markedIncoming(graph);
        const DirectedEdges edges(plainPiece(graph.nodes().toVector()));
        for (int i = 0; i < graph.count(); ++i) {
            for (int k = 0; k < graph[i]->neighbourCount(); ++k)
                graph[i]->outgoingUsed[k] = graph[i]->incomingUsed[k] = false;
        }
        edges.writeMarks();
        ASSERT_EQ(markedOutgoing(graph), outgoing);
        ASSERT_EQ(markedIncoming(graph), incoming);
    }
}
