// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "graph/nodestore.h"

#include <gtest/gtest.h>

namespace {

int destroyed = 0;

class CountedNode : public IntersectionNode
{
public:
    ~CountedNode() override { ++destroyed; }
};

class NodeStoreTest : public testing::Test
{
protected:
    NodeStoreTest()
    {
        store.beginRun();
        destroyed = 0;
    }
    ~NodeStoreTest() override { store.beginRun(); }

    // Makes a run of so many nodes; the first is its seed.
    QList<IntersectionNode *> newRun(int nodes)
    {
        store.beginRun();
        QList<IntersectionNode *> all;
        for (int i = 0; i < nodes; ++i) {
            all.append(new CountedNode); // the store's
            store.own(all.last());
        }
        const QList<IntersectionNode *> seeds = all.mid(0, 1);
        store.setSeeds(seeds);
        return seeds;
    }

    NodeStore &store = NodeStore::instance();
};

} // namespace

TEST_F(NodeStoreTest, aRunThatNobodyHoldsIsFreedWhenTheNextOneBegins)
{
    newRun(3);
    EXPECT_EQ(store.nodeCount(), 3);
    EXPECT_EQ(destroyed, 0);
    store.beginRun();
    EXPECT_EQ(destroyed, 3);
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
    EXPECT_EQ(destroyed, 0);
    store.release(seeds);
    EXPECT_EQ(destroyed, 0) << "a release alone frees nothing";
    store.beginRun();
    EXPECT_EQ(destroyed, 2);
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
    EXPECT_EQ(destroyed, 3);
    EXPECT_EQ(store.nodeCount(), 5);
    store.release(second);
    store.beginRun();
    EXPECT_EQ(store.nodeCount(), 0);
}

TEST_F(NodeStoreTest, anyOfTheSeedsStandsForTheRun)
{
    store.beginRun();
    QList<IntersectionNode *> seeds;
    for (int i = 0; i < 3; ++i) {
        seeds.append(new CountedNode); // the store's
        store.own(seeds.last());
    }
    store.setSeeds(seeds);
    store.hold(seeds.mid(2));
    store.beginRun();
    EXPECT_EQ(destroyed, 0);
    store.release(seeds);
    store.beginRun();
    EXPECT_EQ(destroyed, 3);
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
    EXPECT_EQ(destroyed, 1);
}
