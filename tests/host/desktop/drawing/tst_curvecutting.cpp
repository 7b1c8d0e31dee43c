// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvecutting.h"
#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

using CuttingTest = DrawingTest;

double lengthOfAll(const QVector<CurveShape> &shapes)
{
    double sum = 0.0;
    for (const CurveShape &shape : shapes)
        sum += lengthOf(placesOf(shape.points));
    return sum;
}

} // namespace

TEST_F(CuttingTest, middleOfALineLeavesTwoPieces)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape whole = line({1, 5, 0}, {9, 5, 0}, 9);
    const QVector<CurveShape> rest = erased(whole, {5.2f, 5, 0}, 1.5f, surface());
    ASSERT_EQ(rest.size(), 2);
    EXPECT_NEAR(rest[0].points.last().position.x, 3.7f, 1e-5f);
    EXPECT_NEAR(rest[1].points.first().position.x, 6.7f, 1e-5f);
    EXPECT_EQ(rest[0].points.first().position, Vector(1, 5, 0));
    EXPECT_EQ(rest[1].points.last().position, Vector(9, 5, 0));
    for (const CurveShape &piece : rest)
        expectOnSurface(piece);
}

TEST_F(CuttingTest, ballBetweenTwoPointsCutsTheStretch)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<CurveShape> rest =
        erased(line({1, 5, 0}, {9, 5, 0}, 2), {5, 5, 0}, 0.5f, surface());
    ASSERT_EQ(rest.size(), 2);
    EXPECT_NEAR(lengthOfAll(rest), 7.0, 1e-5);
}

TEST_F(CuttingTest, endOfALineIsShortened)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<CurveShape> rest =
        erased(line({1, 5, 0}, {9, 5, 0}, 9), {9, 5, 0}, 2.5f, surface());
    ASSERT_EQ(rest.size(), 1);
    EXPECT_NEAR(rest[0].points.last().position.x, 6.5f, 1e-5f);
}

TEST_F(CuttingTest, ballAwayFromTheCurveLeavesItAndABigOneTakesAll)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape whole = line({1, 5, 0}, {9, 5, 0}, 9);
    const QVector<CurveShape> rest = erased(whole, {5, 8, 0}, 1.0f, surface());
    ASSERT_EQ(rest.size(), 1);
    EXPECT_EQ(placesOf(rest[0].points), placesOf(whole.points));
    EXPECT_TRUE(erased(whole, {5, 5, 0}, 20.0f, surface()).isEmpty());
}

TEST_F(CuttingTest, closedCurveBecomesOneOpenPieceWhereverItIsCut)
{
    drawOn(gridOfQuads(10, 10), Matrix::Translation({-5, -5, 0}));
    const CurveShape loop = ring(3.0f, 0.0f, 40);
    ASSERT_TRUE(loop.closed);
    for (int i = 0; i < 24; ++i) {
        const float angle = 0.26f * float(i);
        const Vector center(3 * std::cos(angle), 3 * std::sin(angle), 0);
        const QVector<CurveShape> rest = erased(loop, center, 1.0f, surface());
        ASSERT_EQ(rest.size(), 1) << i;
        EXPECT_FALSE(rest[0].closed);
        expectOnSurface(rest[0]);
        EXPECT_NEAR((rest[0].points.first().position - center).Length(), 1.0f, 0.02f);
        EXPECT_NEAR((rest[0].points.last().position - center).Length(), 1.0f, 0.02f);
        EXPECT_NEAR(lengthOfAll(rest), 2 * 3.14159 * 3 - 2.03, 0.06);
    }
}

TEST_F(CuttingTest, closedCurveCutTwiceIsTwoPieces)
{
    drawOn(gridOfQuads(10, 10), Matrix::Translation({-5, -5, 0}));
    const CurveShape loop = ring(3.0f, 0.0f, 40);
    const QVector<CurveShape> once = erased(loop, {0, 3, 0}, 1.0f, surface());
    ASSERT_EQ(once.size(), 1);
    EXPECT_EQ(erased(once[0], {0, -3, 0}, 1.0f, surface()).size(), 2);
}

TEST_F(CuttingTest, closedCurveAwayFromTheBallStaysClosed)
{
    drawOn(gridOfQuads(10, 10), Matrix::Translation({-5, -5, 0}));
    const CurveShape loop = ring(3.0f, 0.0f, 40);
    const QVector<CurveShape> rest = erased(loop, {0, 0, 0}, 1.0f, surface());
    ASSERT_EQ(rest.size(), 1);
    EXPECT_TRUE(rest[0].closed);
    EXPECT_EQ(placesOf(rest[0].points), placesOf(loop.points));
}

TEST_F(CuttingTest, whatIsLeftIsOutsideAndOnTheOldCurve)
{
    std::mt19937 random(testSeed());
    drawOn(sphere(30, 60));
    const CurveShape loop = ring(0.8f, 0.6f, 60);
    const QVector<Vector> old = placesOf(loop.points);
    for (int round = 0; round < 200; ++round) {
        const Vector center = hit(randomVector(random)).WorldPosition();
        const float radius = randomBetween(random, 0.05f, 0.8f);
        for (const CurveShape &piece : erased(loop, center, radius, surface())) {
            expectOnSurface(piece);
            ASSERT_GE(piece.points.size(), 2);
            for (const CurvePoint &point : piece.points) {
                EXPECT_GT((point.position - center).Length(), radius - 0.01f);
                EXPECT_LT(nearestOnLine(old, point.position).distance, 0.01f);
            }
        }
    }
}
