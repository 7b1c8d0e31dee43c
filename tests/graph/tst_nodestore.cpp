// SPDX-License-Identifier: MIT
#include "graph/nodestore.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

class NodeStoreTest : public testing::Test
{
protected:
    NodeStoreTest() { store.beginRun(); }
    ~NodeStoreTest() override { store.beginRun(); }

    // Hands so many nodes over to the current run.
    QList<IntersectionNode *> addNodes(int count)
    {
        NodeBlock nodes{std::size_t(count)};
        QList<IntersectionNode *> all;
        for (IntersectionNode &node : nodes)
            all.append(&node);
        store.own(std::move(nodes));
        return all;
    }

    // Makes a run of so many nodes; the first is its seed.
    QList<IntersectionNode *> newRun(int nodes)
    {
        store.beginRun();
        const QList<IntersectionNode *> seeds = addNodes(nodes).mid(0, 1);
        store.setSeeds(seeds);
        return seeds;
    }

    NodeStore &store = NodeStore::instance();
};

} // namespace

TEST_F(NodeStoreTest, nodesStayWhereTheyAreWhileRunsComeAndGo)
{
    const QList<IntersectionNode *> seeds = newRun(3);
    store.hold(seeds);
    seeds.first()->vertexIndex = 7;
    for (int i = 0; i < 20; ++i)
        newRun(i);
    addNodes(1);
    EXPECT_EQ(seeds.first()->vertexIndex, 7);
    EXPECT_EQ(store.nodeCount(), 3 + 19 + 1);
    store.release(seeds);
}

// So many are allocated in another way than a few.
TEST_F(NodeStoreTest, aRunOfManyNodesIsKeptAndFreedLikeAnyOther)
{
    const QList<IntersectionNode *> nodes = addNodes(200000);
    store.setSeeds(nodes.mid(0, 1));
    store.hold(nodes.mid(0, 1));
    for (int i = 0; i < nodes.size(); ++i)
        nodes[i]->vertexIndex = i;
    newRun(1);
    for (int i = 0; i < nodes.size(); ++i)
        ASSERT_EQ(nodes[i]->vertexIndex, i);
    store.release(nodes.mid(0, 1));
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, aRunThatNobodyHoldsIsFreedWhenTheNextOneBegins)
{
    newRun(3);
    EXPECT_EQ(store.nodeCount(), 3);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, aHeldRunStaysUntilAsManyReleasesAsHolds)
{
    const QList<IntersectionNode *> seeds = newRun(2);
    store.hold(seeds);
    store.hold(seeds);
    store.beginRun();
    store.release(seeds);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 2);
    store.release(seeds);
    EXPECT_EQ(store.nodeCount(), 2) << "a release alone frees nothing";
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, runsAreHeldApart)
{
    const QList<IntersectionNode *> first = newRun(2);
    store.hold(first);
    const QList<IntersectionNode *> second = newRun(5);
    store.hold(second);
    newRun(1);
    EXPECT_EQ(store.nodeCount(), 8);
    store.release(first);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 5);
    store.release(second);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, anyOfTheSeedsStandsForTheRun)
{
    store.beginRun();
    const QList<IntersectionNode *> seeds = addNodes(3);
    store.setSeeds(seeds);
    store.hold(seeds.mid(2));
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 3);
    store.release(seeds);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, anEmptyListAndAListOfNoRunAreIgnored)
{
    newRun(1);
    IntersectionNode stranger;
    store.hold({});
    store.hold({&stranger});
    store.release({});
    store.release({&stranger});
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}
