// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvejoining.h"
#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <algorithm>
#include <cmath>

using namespace orvane;

namespace {

using JoiningTest = DrawingTest;

CurveShape turned(CurveShape shape)
{
    std::reverse(shape.points.begin(), shape.points.end());
    return shape;
}

} // namespace

TEST_F(JoiningTest, nearerEndsMeetHoweverTheCurvesRun)
{
    drawOn(gridOfQuads(12, 10));
    const CurveShape left = line({1, 5, 0}, {4, 5, 0}, 7);
    const CurveShape right = line({6, 5, 0}, {10, 5, 0}, 9);
    for (bool turnLeft : {false, true}) {
        for (bool turnRight : {false, true}) {
            const CurveShape one = joined(turnLeft ? turned(left) : left,
                                          turnRight ? turned(right) : right, surface());
            ASSERT_EQ(one.points.size(), 19);
            EXPECT_FALSE(one.closed);
            expectEven(one, 0.001f);
            expectOnSurface(one);
            EXPECT_EQ(one.points.first().position.x, turnLeft ? 10.0f : 1.0f);
            EXPECT_EQ(one.points.last().position.x, turnLeft ? 1.0f : 10.0f);
        }
    }
}

TEST_F(JoiningTest, touchingEndsShareOnePoint)
{
    drawOn(gridOfQuads(12, 10));
    const CurveShape left = line({1, 5, 0}, {4, 5, 0}, 7);
    const CurveShape one = joined(left, line({4, 5, 0}, {8, 5, 0}, 9), surface());
    EXPECT_EQ(one.points.size(), 15);
    expectEven(one, 0.001f);
}

TEST_F(JoiningTest, gapIsBridgedAlongTheSurface)
{
    drawOn(sphere(40, 80));
    const CurveShape a = line({{1, 0, 0}, {0.99f, 0.1f, 0}, {0.98f, 0.2f, 0}});
    const CurveShape b = line({{0.2f, 0.98f, 0}, {0.1f, 0.99f, 0}, {0, 1, 0}});
    const CurveShape one = joined(a, b, surface());
    expectOnSurface(one);
    expectEven(one, 0.2f);
    EXPECT_NEAR(lengthOf(placesOf(one.points)), 1.5708, 0.01);
}

TEST_F(JoiningTest, closedCurveHasNoEndToJoin)
{
    drawOn(sphere(40, 80));
    const CurveShape loop = ring(0.8f, 0.6f, 30);
    const CurveShape open = line({1, 0, 0}, {0, 1, 0}, 12);
    EXPECT_EQ(placesOf(joined(loop, open, surface()).points), placesOf(loop.points));
    EXPECT_EQ(placesOf(joined(open, loop, surface()).points), placesOf(open.points));
    EXPECT_EQ(placesOf(joined(open, {}, surface()).points), placesOf(open.points));
}

TEST_F(JoiningTest, strokeGoesOnFromTheEndWhereItStarts)
{
    drawOn(gridOfQuads(12, 10));
    const CurveShape middle = line({4, 5, 0}, {8, 5, 0}, 9);
    const CurveShape ahead = extended(middle, line({8.2f, 5, 0}, {10, 5, 0}, 5), surface());
    EXPECT_EQ(ahead.points.first().position.x, 4.0f);
    EXPECT_EQ(ahead.points.last().position.x, 10.0f);
    // A stroke that starts at the beginning and passes the far end is still begun there.
    const CurveShape back = extended(middle, line({3.9f, 5.1f, 0}, {8, 5.1f, 0}, 9), surface());
    EXPECT_LT((back.points.first().position - Vector(8, 5.1f, 0)).Length(), 1e-5f);
    EXPECT_EQ(back.points.last().position.x, 8.0f);
    expectOnSurface(back);
}

TEST_F(JoiningTest, closingBridgesTheGapAndOpensAgain)
{
    drawOn(sphere(40, 80));
    CurveShape open{drawnPoints(ring(0.8f, 0.6f, 40)).mid(0, 33), false};
    const CurveShape loop = closed(open, surface());
    EXPECT_TRUE(loop.closed);
    expectWellClosed(loop);
    expectOnSurface(loop);
    expectEven(loop);
    EXPECT_NEAR(loop.points.size(), 41, 1);
    EXPECT_EQ(placesOf(closed(loop, surface()).points), placesOf(loop.points));
}

TEST_F(JoiningTest, twoPointsCannotClose)
{
    drawOn(gridOfQuads(5, 5));
    EXPECT_FALSE(closed(line({1, 1, 0}, {2, 1, 0}, 2), surface()).closed);
    EXPECT_FALSE(closed({}, surface()).closed);
}
