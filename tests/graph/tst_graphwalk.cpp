// SPDX-License-Identifier: MIT
#include "graph/graphwalk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

// 0 - 1 - 2 - 0, and the loose end 3 at 1.
class GraphWalk : public testing::Test
{
protected:
    GraphWalk()
    {
        nodes[0].addNeighbour(&nodes[1]);
        nodes[0].addNeighbour(&nodes[2]);
        nodes[1].addNeighbour(&nodes[2]);
        nodes[1].addNeighbour(&nodes[3]);
    }

    std::vector<int> visitedFrom(IntersectionNode *start)
    {
        std::vector<int> visited;
        walkGraph(start,
                  [&](IntersectionNode *node) { visited.push_back(int(node - nodes.data())); });
        return visited;
    }

    std::array<IntersectionNode, 5> nodes;
};

} // namespace

TEST_F(GraphWalk, visitsEachNodeThatCanBeReachedOnceTheLastNeighbourFirst)
{
    EXPECT_EQ(visitedFrom(&nodes[0]), (std::vector<int>{0, 2, 1, 3}));
}

TEST_F(GraphWalk, aLoneNodeIsVisitedAndNullIsNot)
{
    EXPECT_EQ(visitedFrom(&nodes[4]), (std::vector<int>{4}));
    EXPECT_EQ(visitedFrom(nullptr), std::vector<int>());
}

TEST_F(GraphWalk, followsTheOrderThatTheVisitorLeaves)
{
    std::vector<int> visited;
    walkGraph(&nodes[0], [&](IntersectionNode *node) {
        visited.push_back(int(node - nodes.data()));
        std::reverse(node->neighbours.begin(), node->neighbours.end());
    });
    EXPECT_EQ(visited, (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(GraphWalk, aChainOfAMillionNodesNeedsNoDeepStack)
{
    std::vector<IntersectionNode> chain(1000000);
    for (std::size_t i = 0; i + 1 < chain.size(); ++i)
        chain[i].addNeighbour(&chain[i + 1]);
    std::size_t visits = 0;
    walkGraph(&chain.front(), [&](IntersectionNode *) { ++visits; });
    EXPECT_EQ(visits, chain.size());
}
