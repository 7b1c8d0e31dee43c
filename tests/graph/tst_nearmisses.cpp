// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "graph/nearmisses.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const float NotANumber = std::numeric_limits<float>::quiet_NaN();

} // namespace

TEST(NearMisses, anEndIsMetOnlyByAFractionOfItAndOneOnTheOtherSegment)
{
    EXPECT_TRUE(NearMisses::isOnEnd(0.0f, 0.5f));
    EXPECT_TRUE(NearMisses::isOnEnd(0.5f, 1.0f));
    EXPECT_TRUE(NearMisses::isOnEnd(1.0f, 0.0f));
    EXPECT_TRUE(NearMisses::isOnEnd(1.000005f, -0.000005f)) << "give or take rounding";
    EXPECT_FALSE(NearMisses::isOnEnd(0.5f, 0.5f));
    EXPECT_FALSE(NearMisses::isOnEnd(0.0f, 1.1f));
    EXPECT_FALSE(NearMisses::isOnEnd(-0.1f, 0.0f));
    EXPECT_FALSE(NearMisses::isOnEnd(1.0001f, 0.5f));
    EXPECT_FALSE(NearMisses::isOnEnd(-1.0f, -1.0f)) << "what parallel lines answer";
    EXPECT_FALSE(NearMisses::isOnEnd(NotANumber, 0.0f));
    EXPECT_FALSE(NearMisses::isOnEnd(0.0f, NotANumber));
}

TEST(NearMisses, aPlaceMetFromBothSegmentsAtThePointIsNamedOnce)
{
    NearMisses misses;
    misses.note(0, 1.0f, 1, 3.5f, {1, 2, 3});
    misses.note(0, 1.0f, 1, 3.5f, {1, 2, 3});
    misses.note(0, 1.0f, 2, 3.5f, {1, 2, 3}); // another curve through the same point
    misses.note(0, 4.0f, 1, 5.5f, {4, 5, 6});
    misses.note(1, 1.0f, 2, 3.5f, {7, 8, 9});
    const QVector<PointOnCurve> found = misses.unresolved(QVector<CurveRecord>(3));
    ASSERT_EQ(found.size(), 4);
    EXPECT_EQ(found[0].curveA, 0);
    EXPECT_EQ(found[0].curveB, 1);
    EXPECT_EQ(found[0].place, orvane::Vector(1, 2, 3));
    EXPECT_EQ(found[1].curveB, 2);
    EXPECT_EQ(found[2].place, orvane::Vector(4, 5, 6));
    EXPECT_EQ(found[3].curveA, 1);
}

TEST(NearMisses, aCrossingRightNextToItMakesUpForAMissOnlyWhenItIsOnBothCurves)
{
    NearMisses misses;
    misses.note(0, 1.0f, 1, 3.5f, {});
    IntersectionNode node;
    QVector<CurveRecord> records(3);
    records[0].insert(0.9999f, &node);
    EXPECT_EQ(misses.unresolved(records).size(), 1) << "the crossing is with a third curve";
    records[2].insert(3.5f, &node);
    EXPECT_EQ(misses.unresolved(records).size(), 1);
    records[1].insert(3.6f, &node);
    EXPECT_EQ(misses.unresolved(records).size(), 1) << "it is elsewhere on the other curve";
    records[1].insert(3.5005f, &node);
    EXPECT_TRUE(misses.unresolved(records).isEmpty());
}

TEST(NearMisses, aRecordKeepsTheOrderByParameterAndOfEqualOnesTheOrderTheyCame)
{
    IntersectionNode nodes[5];
    CurveRecord record;
    record.insert(2.0f, &nodes[0]);
    record.insert(1.0f, &nodes[1]);
    record.insert(2.0f, &nodes[2]);
    record.insert(0.5f, &nodes[3]);
    record.insert(2.0f, &nodes[4]);
    EXPECT_EQ(record.nodes(),
              (QVector<IntersectionNode *>{&nodes[3], &nodes[1], &nodes[0], &nodes[2], &nodes[4]}));
    EXPECT_EQ(record.nodesBetween(1.0f, 1.5f), QVector<IntersectionNode *>{&nodes[1]});
    EXPECT_EQ(record.nodesBetween(2.0f, 2.0f).size(), 3);
    EXPECT_TRUE(record.nodesBetween(2.5f, 9.0f).isEmpty());
    EXPECT_TRUE(CurveRecord().nodesBetween(0.0f, 1.0f).isEmpty());
}
