// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "graph/nodemerge.h"
#include "tests/support/graphchecks.h"
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <limits>
#include <memory>
#include <vector>

using orvane::Vector;

namespace {

// Nodes and the list of them that a run would hold.
struct Graph
{
    explicit Graph(const QVector<Vector> &places)
    {
        for (const Vector &place : places) {
            owned.push_back(std::make_unique<IntersectionNode>());
            owned.back()->position() = place;
            nodes.append(owned.back().get());
        }
    }

    IntersectionNode &operator[](int i) const { return *owned[std::size_t(i)]; }
    void link(int a, int b) { (*this)[a].addNeighbour(&(*this)[b]); }
    QVector<int> kept() const { return numbersOf(nodes); }
    QVector<int> numbersOf(const QList<IntersectionNode *> &list) const
    {
        QVector<int> numbers;
        for (const IntersectionNode *node : list) {
            for (std::size_t i = 0; i < owned.size(); ++i) {
                if (owned[i].get() == node)
                    numbers.append(int(i));
            }
        }
        return numbers;
    }

    std::vector<std::unique_ptr<IntersectionNode>> owned;
    QList<IntersectionNode *> nodes;
};

Graph linkedPair(float distance)
{
    Graph graph({{0, 0, 0}, {distance, 0, 0}});
    graph.link(0, 1);
    return graph;
}

// The pass once more, as its steps read.
void plainMerge(QList<IntersectionNode *> &nodes, float mergeDistance)
{
    QList<IntersectionNode *> work = nodes;
    while (!work.isEmpty()) {
        IntersectionNode *a = work.takeFirst();
        QList<IntersectionNode *> close;
        for (IntersectionNode *b : qAsConst(a->neighbours)) {
            if ((a->position() - b->position()).LengthSquared() < mergeDistance * mergeDistance)
                close.append(b);
        }
        for (IntersectionNode *b : close) {
            a->merge(b);
            b->unlinkAll();
            work.removeAll(b);
            nodes.removeAll(b);
        }
    }
}

} // namespace

TEST(NodeMerge, nodesLinkedAtDistance0009AreFusedAtMergeDistance001AndAtExactly001AreNot)
{
    Graph near = linkedPair(0.009f);
    mergeCloseNodes(near.nodes, 0.01f);
    EXPECT_EQ(near.kept(), QVector<int>{0});
    EXPECT_EQ(near[0].neighbourCount(), 0);

    Graph exact = linkedPair(0.01f);
    mergeCloseNodes(exact.nodes, 0.01f);
    EXPECT_EQ(exact.kept(), (QVector<int>{0, 1}));
    EXPECT_TRUE(exact[0].hasNeighbour(&exact[1]));
}

TEST(NodeMerge, nodesThatAreCloseButNotLinkedStayApart)
{
    Graph graph({{0, 0, 0}, {5, 0, 0}, {0.001f, 0, 0}});
    graph.link(0, 1);
    graph.link(1, 2);
    mergeCloseNodes(graph.nodes, 0.01f);
    EXPECT_EQ(graph.kept(), (QVector<int>{0, 1, 2}));
}

TEST(NodeMerge, allCloseNeighboursAreCollectedBeforeTheFirstIsMerged)
{
    // 3 is close to 0 too, but becomes its neighbour only through 1.
    Graph graph({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0.5f, 0, 0}});
    graph.link(0, 1);
    graph.link(0, 2);
    graph.link(1, 3);
    mergeCloseNodes(graph.nodes, 1.5f);
    // 0 took 1 and 2, and had its turn; then 3 took 0.
    EXPECT_EQ(graph.kept(), QVector<int>{3});

    Graph chain({{0, 0, 0}, {1, 0, 0}, {2.4f, 0, 0}});
    chain.link(0, 1);
    chain.link(1, 2);
    mergeCloseNodes(chain.nodes, 1.5f);
    EXPECT_EQ(chain.kept(), (QVector<int>{0, 2})) << "2 is too far from where 0 stands";
    EXPECT_TRUE(chain[0].hasNeighbour(&chain[2]));
}

TEST(NodeMerge, nodesHaveTheirTurnInListOrder)
{
    Graph graph({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    graph.link(0, 1);
    graph.link(1, 2);
    Graph reversed({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    reversed.link(0, 1);
    reversed.link(1, 2);
    reversed.nodes = {&reversed[2], &reversed[1], &reversed[0]};
    mergeCloseNodes(graph.nodes, 1.5f);
    EXPECT_EQ(graph.kept(), (QVector<int>{0, 2}));
    mergeCloseNodes(reversed.nodes, 1.5f);
    EXPECT_EQ(reversed.kept(), (QVector<int>{2, 0}));
}

TEST(NodeMerge, anAbsorbedNodeLeavesEveryListAndItsLinksAndCurvesGoToTheOther)
{
    Graph graph({{0, 0, 0}, {0.1f, 0, 0}, {5, 0, 0}, {0, 5, 0}});
    graph.link(0, 1);
    graph.link(1, 2);
    graph.link(1, 3);
    graph.nodes.append(graph.nodes[1]); // listed twice
    mergeCloseNodes(graph.nodes, 0.5f);
    EXPECT_EQ(graph.kept(), (QVector<int>{0, 2, 3}));
    EXPECT_EQ(graph.numbersOf(graph[0].neighbours), (QVector<int>{2, 3}));
    EXPECT_EQ(graph.numbersOf(graph[2].neighbours), QVector<int>{0});
    EXPECT_EQ(graph[1].neighbourCount(), 0);
    EXPECT_EQ(graph[0].position(), Vector(0, 0, 0)) << "the one that stays does not move";
    EXPECT_TRUE(isSound(graph.nodes));
    EXPECT_TRUE(isClosedUnderLinks(graph.nodes));
}

TEST(NodeMerge, aNodeThatHadItsTurnCanStillBeAbsorbedByALaterOne)
{
    Graph graph({{0, 0, 0}, {0.4f, 0, 0}, {-0.4f, 0, 0}});
    graph.link(0, 1);
    graph.link(1, 2);
    mergeCloseNodes(graph.nodes, 0.5f);
    // Not linked to 0 at first, 2 is by the time 0 has absorbed 1.
    EXPECT_EQ(graph.kept(), QVector<int>{2});
    EXPECT_EQ(graph[2].neighbourCount(), 0);
    EXPECT_TRUE(isClosedUnderLinks(graph.nodes));
}

TEST(NodeMerge, zeroMergesNothingAndANegativeDistanceDoesWhatItsSquareDoes)
{
    Graph same = linkedPair(0.0f);
    mergeCloseNodes(same.nodes, 0.0f);
    EXPECT_EQ(same.nodes.size(), 2);
    Graph negative = linkedPair(0.009f);
    mergeCloseNodes(negative.nodes, -0.01f);
    EXPECT_EQ(negative.nodes.size(), 1);
    Graph none = linkedPair(std::numeric_limits<float>::quiet_NaN());
    mergeCloseNodes(none.nodes, 1.0f);
    EXPECT_EQ(none.nodes.size(), 2);
}

TEST(NodeMerge, theTimersAreLoggedOnceAlsoForAnEmptyList)
{
    QList<IntersectionNode *> nodes;
    const LogCatcher log;
    mergeCloseNodes(nodes, 1.0f);
    EXPECT_TRUE(nodes.isEmpty());
    EXPECT_EQ(log.count(), 1);
}

TEST(NodeMerge, randomGraphsEndAsTheStepsSay)
{
    std::mt19937 random(testSeed());
    int absorbed = 0;
    for (int round = 0; round < 500; ++round) {
        QVector<Vector> places;
        const unsigned count = 2 + random() % 40;
        for (unsigned i = 0; i < count; ++i)
            places.append(randomVector(random, 3.0f));
        Graph graph(places);
        Graph plain(places);
        const unsigned links = random() % 100;
        for (unsigned i = 0; i < links; ++i) {
            const int a = int(random() % count);
            const int b = int(random() % count);
            graph.link(a, b);
            plain.link(a, b);
        }
        const float distance = randomBetween(random, 0.0f, 4.0f);
        mergeCloseNodes(graph.nodes, distance);
        plainMerge(plain.nodes, distance);
        ASSERT_EQ(graph.kept(), plain.kept()) << "round " << round;
        ASSERT_TRUE(isSound(graph.nodes));
        ASSERT_TRUE(isClosedUnderLinks(graph.nodes));
        for (int i : graph.kept())
            ASSERT_EQ(graph.numbersOf(graph[i].neighbours), plain.numbersOf(plain[i].neighbours));
        absorbed += int(count) - graph.nodes.size();
    }
    EXPECT_GT(absorbed, 2000);
}

TEST(NodeMerge, aGridOf22500NodesThatAllMergeEndsAsOne)
{
    const int side = 150;
    std::vector<IntersectionNode> nodes(side * side);
    QList<IntersectionNode *> list;
    for (int i = 0; i < side * side; ++i) {
        IntersectionNode &node = nodes[std::size_t(i)];
        node.position() = {float(i % side), float(i / side), 0.0f};
        if (i % side > 0)
            node.addNeighbour(&nodes[std::size_t(i - 1)]);
        if (i >= side)
            node.addNeighbour(&nodes[std::size_t(i - side)]);
        list.append(&node);
    }
    mergeCloseNodes(list, 1000.0f);
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(list.first()->neighbourCount(), 0);
}
