// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "graph/nodestore.h"
#include "plugin/overlaylist.h"

#include <gtest/gtest.h>

namespace {

// A list of start nodes and how many nodes the store keeps. Each run has one node.
class OverlayListTest : public testing::Test
{
protected:
    OverlayListTest() { store.beginRun(); }

    ~OverlayListTest() override
    {
        list.replace({});
        store.beginRun();
    }

    QList<IntersectionNode *> newRun()
    {
        store.beginRun();
        NodeBlock nodes(1);
        IntersectionNode *node = nodes.data();
        store.own(std::move(nodes));
        store.setSeeds({node});
        return {node};
    }

    int keptNodes()
    {
        store.beginRun();
        return store.nodeCount();
    }

    NodeStore &store = NodeStore::instance();
    OverlayList list;
};

} // namespace

TEST_F(OverlayListTest, isEmptyAtFirst)
{
    EXPECT_TRUE(list.nodes().isEmpty());
    EXPECT_EQ(&OverlayList::instance(), &OverlayList::instance());
}

TEST_F(OverlayListTest, keepsItsNodesWhileOthersGenerate)
{
    const QList<IntersectionNode *> nodes = newRun();
    list.replace(nodes);
    newRun();
    EXPECT_EQ(keptNodes(), 1);
    EXPECT_EQ(list.nodes(), nodes);
    EXPECT_EQ(list.nodes().first()->neighbourCount(), 0);
}

TEST_F(OverlayListTest, letsTheOldNodesGoWhenItIsReplaced)
{
    list.replace(newRun());
    list.replace(newRun());
    EXPECT_EQ(keptNodes(), 1);
    list.replace({});
    EXPECT_EQ(keptNodes(), 0);
}

TEST_F(OverlayListTest, theSameListAgainHoldsOnce)
{
    const QList<IntersectionNode *> nodes = newRun();
    list.replace(nodes);
    list.replace(nodes);
    list.replace({});
    EXPECT_EQ(keptNodes(), 0);
}

TEST_F(OverlayListTest, givesItsNodesUpAtTheEnd)
{
    {
        OverlayList other;
        other.replace(newRun());
        EXPECT_EQ(keptNodes(), 1);
    }
    EXPECT_EQ(keptNodes(), 0);
}

TEST_F(OverlayListTest, twoListsOfOneRunHoldItTwice)
{
    OverlayList other;
    const QList<IntersectionNode *> nodes = newRun();
    list.replace(nodes);
    other.replace(nodes);
    list.replace({});
    EXPECT_EQ(keptNodes(), 1);
    other.replace({});
    EXPECT_EQ(keptNodes(), 0);
}
