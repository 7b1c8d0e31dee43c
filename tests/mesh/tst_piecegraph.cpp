// SPDX-License-Identifier: MIT
#include "graph/graphwalk.h"
#include "mesh/piecegraph.h"
#include "tests/mesh/plainpiece.h"
#include "tests/support/graphs.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

using orvane::Vector;

namespace {

// Several pieces; some links lead one way only or nowhere, or are listed twice.
TestGraph anyGraph(std::mt19937 &random)
{
    TestGraph graph;
    const int count = 1 + int(random() % 40u);
    for (int i = 0; i < count; ++i)
        graph.add(randomVector(random, 4.0f), randomVector(random, 1.0f));
    for (unsigned link = random() % 70u; link > 0; --link)
        graph.link(int(random() % unsigned(count)), int(random() % unsigned(count)));
    for (int i = 0; i < count; ++i) {
        IntersectionNode *node = graph[i];
        if (node->neighbourCount() > 0 && random() % 10u == 0u)
            node->neighbours[0] =
                random() % 3u == 0u ? nullptr : graph[int(random() % unsigned(count))];
    }
    return graph;
}

void expectEqual(const PieceGraph &piece, const PieceGraph &plain)
{
    ASSERT_EQ(piece.nodes, plain.nodes);
    EXPECT_EQ(piece.positions, plain.positions);
    EXPECT_EQ(piece.normals, plain.normals);
    EXPECT_EQ(piece.firstEdges, plain.firstEdges);
    EXPECT_EQ(piece.targets, plain.targets);
    EXPECT_EQ(piece.hasMarks, plain.hasMarks);
}

} // namespace

TEST(PieceGraph, nullGivesAnEmptyPiece)
{
    const PieceGraph piece = numberedPiece(nullptr);
    EXPECT_TRUE(piece.nodes.isEmpty());
    EXPECT_TRUE(piece.targets.empty());
    EXPECT_EQ(piece.firstEdges, std::vector<int>{0});
}

TEST(PieceGraph, theLastNeighbourComesNext)
{
    const TestGraph star = starGraph(3);
    const PieceGraph piece = numberedPiece(star[0]);
    EXPECT_EQ(piece.nodes, (QVector<IntersectionNode *>{star[0], star[3], star[2], star[1]}));
    EXPECT_EQ(piece.targets, (std::vector<int>{3, 2, 1, 0, 0, 0}));
    EXPECT_EQ(piece.edgeCount(0), 3);
    EXPECT_EQ(piece.below(0, 0), 2);
    EXPECT_EQ(piece.below(0, 2), 1);
    EXPECT_EQ(piece.below(1, 3), 3);
    EXPECT_EQ(star[1]->vertexIndex, 3);
}

TEST(PieceGraph, anyMarkInTheFlagListsIsNoted)
{
    const TestGraph square = squareGraph();
    EXPECT_FALSE(numberedPiece(square[0]).hasMarks);
    square[2]->incomingUsed[1] = true;
    EXPECT_TRUE(numberedPiece(square[0]).hasMarks);
    square[2]->incomingUsed[1] = false;
    square[1]->outgoingUsed[0] = true;
    EXPECT_TRUE(numberedPiece(square[0]).hasMarks);
}

TEST(PieceGraph, randomGraphsAreNumberedAsAWalkMeetsThem)
{
    std::mt19937 random(testSeed());
    for (int run = 0; run < 500 && !HasFatalFailure(); ++run) {
        const TestGraph graph = anyGraph(random);
        QVector<IntersectionNode *> order;
        walkGraph(graph[0], [&order](IntersectionNode *node) { order.append(node); });
        const PieceGraph piece = numberedPiece(graph[0]);
        for (int i = 0; i < order.size(); ++i)
            EXPECT_EQ(order[i]->vertexIndex, i);
        expectEqual(piece, plainPiece(order));
    }
}
