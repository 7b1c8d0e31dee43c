// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "tests/support/graphchecks.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using orvane::OrvaneCurve;

namespace {

template <std::size_t N>
QList<IntersectionNode *> listOf(std::array<IntersectionNode, N> &nodes)
{
    QList<IntersectionNode *> list;
    for (IntersectionNode &node : nodes)
        list.append(&node);
    return list;
}

} // namespace

TEST(IntersectionNode, addNeighbourOfItselfOrNullReturnsFalseAndChangesNothing)
{
    std::array<IntersectionNode, 2> nodes;
    IntersectionNode &a = nodes[0];
    a.addNeighbour(&nodes[1]);
    EXPECT_FALSE(a.addNeighbour(&a));
    EXPECT_FALSE(a.addNeighbour(nullptr));
    EXPECT_EQ(a.neighbours, QList<IntersectionNode *>{&nodes[1]});
    EXPECT_EQ(a.incomingUsed, QList<bool>{false});
    EXPECT_EQ(a.outgoingUsed, QList<bool>{false});
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, addingALinkTwiceLeavesOneEntryOnEachSideAndReturnsTrueBothTimes)
{
    std::array<IntersectionNode, 2> nodes;
    IntersectionNode &a = nodes[0];
    IntersectionNode &b = nodes[1];
    EXPECT_TRUE(a.addNeighbour(&b));
    EXPECT_TRUE(a.addNeighbour(&b));
    EXPECT_TRUE(b.addNeighbour(&a));
    EXPECT_EQ(a.neighbours, QList<IntersectionNode *>{&b});
    EXPECT_EQ(b.neighbours, QList<IntersectionNode *>{&a});
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, afterRemoveNeighbourAtNeitherListsTheOtherAndBothFlagListsAreOneShorter)
{
    std::array<IntersectionNode, 4> nodes;
    IntersectionNode &a = nodes[0];
    IntersectionNode &b = nodes[2];
    for (int i = 1; i < 4; ++i)
        a.addNeighbour(&nodes[std::size_t(i)]);
    b.addNeighbour(&nodes[3]);
    ASSERT_EQ(a.indexOfNeighbour(&b), 1);

    EXPECT_TRUE(a.removeNeighbourAt(1));
    EXPECT_FALSE(a.hasNeighbour(&b));
    EXPECT_FALSE(b.hasNeighbour(&a));
    EXPECT_EQ(a.incomingUsed.size(), 2);
    EXPECT_EQ(a.outgoingUsed.size(), 2);
    EXPECT_EQ(b.incomingUsed.size(), 1);
    EXPECT_EQ(b.outgoingUsed.size(), 1);
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, unlinkAllOnANodeWithThreeNeighboursLeavesFourNodesWithNoReferenceToIt)
{
    std::array<IntersectionNode, 4> nodes;
    IntersectionNode &center = nodes[0];
    for (std::size_t i = 1; i < 4; ++i)
        center.addNeighbour(&nodes[i]);
    nodes[1].addNeighbour(&nodes[2]);

    center.unlinkAll();
    for (const IntersectionNode &node : nodes)
        EXPECT_FALSE(node.hasNeighbour(&center));
    EXPECT_EQ(center.neighbourCount(), 0);
    EXPECT_TRUE(nodes[1].hasNeighbour(&nodes[2])) << "a link that was none of its own";
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, mergeOfANodeLinkedToThisOneDoesNotMakeItItsOwnNeighbour)
{
    std::array<IntersectionNode, 3> nodes;
    IntersectionNode &a = nodes[0];
    IntersectionNode &b = nodes[1];
    IntersectionNode &c = nodes[2];
    b.addNeighbour(&a);
    b.addNeighbour(&c);
    EXPECT_TRUE(a.merge(&b));
    EXPECT_FALSE(a.hasNeighbour(&a));
    EXPECT_EQ(a.neighbours, (QList<IntersectionNode *>{&b, &c}));
    EXPECT_EQ(c.neighbours, (QList<IntersectionNode *>{&b, &a}));
    EXPECT_EQ(b.neighbours, (QList<IntersectionNode *>{&a, &c})) << "the other keeps its own lists";
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, newNodeIsEmptyAndTakesOverASample)
{
    const IntersectionNode fresh;
    EXPECT_TRUE(fresh.neighbours.isEmpty());
    EXPECT_TRUE(fresh.curves.isEmpty());
    EXPECT_EQ(fresh.normal, orvane::Vector());
    EXPECT_EQ(fresh.vertexIndex, -1);
    EXPECT_EQ(fresh.curvePoint.surfacePoint.Mesh(), nullptr);
    EXPECT_EQ(NodeSample().vertexIndex, -1);

    NodeSample sample;
    sample.curvePoint.position = {1, 2, 3};
    sample.normal = {0, 0, 1};
    sample.vertexIndex = 7;
    IntersectionNode node(sample);
    EXPECT_EQ(node.position(), orvane::Vector(1, 2, 3));
    EXPECT_EQ(node.normal, orvane::Vector(0, 0, 1));
    EXPECT_EQ(node.vertexIndex, 7);
    node.position() = {4, 5, 6};
    EXPECT_EQ(node.curvePoint.position, orvane::Vector(4, 5, 6));
    node.setSample(NodeSample());
    EXPECT_EQ(node.position(), orvane::Vector());
    EXPECT_EQ(node.vertexIndex, -1);
    EXPECT_TRUE(std::has_virtual_destructor<IntersectionNode>::value);
}

TEST(IntersectionNode, indicesOutOfRangeAreAnsweredWithNullFalseOrMinusOne)
{
    std::array<IntersectionNode, 2> nodes;
    IntersectionNode &a = nodes[0];
    a.addNeighbour(&nodes[1]);
    EXPECT_EQ(a.neighbour(-1), nullptr);
    EXPECT_EQ(a.neighbour(1), nullptr);
    EXPECT_EQ(a.neighbour(0), &nodes[1]);
    EXPECT_FALSE(a.removeNeighbourAt(-1));
    EXPECT_FALSE(a.removeNeighbourAt(1));
    EXPECT_EQ(a.indexOfNeighbour(nullptr), -1);
    EXPECT_EQ(a.indexOfNeighbour(&a), -1);
    EXPECT_FALSE(a.merge(nullptr));
    EXPECT_EQ(a.neighbourCount(), 1);
    EXPECT_TRUE(isSound(listOf(nodes)));
}

TEST(IntersectionNode, removalTakesTheFlagsOfTheSamePlace)
{
    std::array<IntersectionNode, 4> nodes;
    IntersectionNode &a = nodes[0];
    for (std::size_t i = 1; i < 4; ++i)
        a.addNeighbour(&nodes[i]);
    a.incomingUsed = {true, false, true};
    a.outgoingUsed = {false, true, true};
    EXPECT_TRUE(a.removeNeighbourAt(1));
    EXPECT_EQ(a.incomingUsed, (QList<bool>{true, true}));
    EXPECT_EQ(a.outgoingUsed, (QList<bool>{false, true}));
}

TEST(IntersectionNode, eachCurveIsListedOnceAndNullNever)
{
    OrvaneCurve first;
    OrvaneCurve second;
    IntersectionNode node;
    EXPECT_TRUE(node.addCurve(&first));
    EXPECT_FALSE(node.addCurve(&first));
    EXPECT_FALSE(node.addCurve(nullptr));
    EXPECT_TRUE(node.addCurve(&second));
    EXPECT_EQ(node.curveCount(), 2);
    EXPECT_EQ(node.curve(1), &second);
    EXPECT_EQ(node.curve(2), nullptr);
    EXPECT_EQ(node.curve(-1), nullptr);
    EXPECT_EQ(node.indexOfCurve(&second), 1);
    EXPECT_EQ(node.indexOfCurve(nullptr), -1);
    EXPECT_FALSE(node.hasCurve(nullptr));
    EXPECT_FALSE(node.removeCurveAt(2));
    EXPECT_FALSE(node.removeCurve(nullptr));
    EXPECT_TRUE(node.removeCurve(&first));
    EXPECT_FALSE(node.removeCurve(&first));
    EXPECT_TRUE(node.removeCurveAt(0));
    EXPECT_EQ(node.curveCount(), 0);
}

TEST(IntersectionNode, mergeTakesOverCurvesOnceAndSkipsNull)
{
    OrvaneCurve shared;
    OrvaneCurve own;
    IntersectionNode a;
    IntersectionNode b;
    a.addCurve(&shared);
    b.addCurve(&own);
    b.addCurve(&shared);
    b.curves.append(nullptr);
    EXPECT_TRUE(a.merge(&b));
    EXPECT_EQ(a.curves, (QList<OrvaneCurve *>{&shared, &own}));
}

TEST(IntersectionNode, anEntryThatSomeoneSetToNullHarmsNoOperation)
{
    std::array<IntersectionNode, 3> nodes;
    IntersectionNode &a = nodes[0];
    a.addNeighbour(&nodes[1]);
    a.addNeighbour(&nodes[2]);
    nodes[1].unlinkAll();
    a.neighbours.prepend(nullptr);
    a.incomingUsed.prepend(false);
    a.outgoingUsed.prepend(false);
    EXPECT_TRUE(nodes[1].merge(&a));
    EXPECT_EQ(nodes[1].neighbours, QList<IntersectionNode *>{&nodes[2]});
    a.unlinkAll();
    EXPECT_TRUE(a.removeNeighbourAt(0));
    EXPECT_EQ(a.neighbourCount(), 0);
}

TEST(IntersectionNode, anyOperationsInAnyOrderKeepTheRules)
{
    std::mt19937 random(testSeed());
    std::array<OrvaneCurve, 5> curves;
    std::array<IntersectionNode, 12> nodes;
    const QList<IntersectionNode *> all = listOf(nodes);
    const auto anyNode = [&]() {
        return &nodes[random() % nodes.size()];
    };
    for (int step = 0; step < 20000; ++step) {
        IntersectionNode *node = anyNode();
        switch (random() % 8) {
        case 0:
            node->removeNeighbourAt(int(random() % 6) - 1);
            break;
        case 1:
            node->unlinkAll();
            break;
        case 2:
            node->merge(random() % 8 == 0 ? nullptr : anyNode());
            break;
        case 3:
            node->addCurve(&curves[random() % curves.size()]);
            break;
        case 4:
            node->removeCurveAt(int(random() % 4) - 1);
            break;
        default:
            node->addNeighbour(random() % 8 == 0 ? nullptr : anyNode());
        }
        ASSERT_TRUE(isSound(all)) << "after step " << step;
    }
}
