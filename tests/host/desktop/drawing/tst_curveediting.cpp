// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

class EditingTest : public DrawingTest
{
protected:
    CurveShape zigzag() const
    {
        QVector<Vector> places;
        for (int i = 0; i < 17; ++i)
            places.append({1.0f + 0.5f * float(i), i % 2 ? 5.2f : 4.8f, 0});
        return line(places);
    }
};

double roughness(const CurveShape &shape)
{
    double sum = 0.0;
    for (int i = 1; i + 1 < shape.points.size(); ++i) {
        const Vector bend = shape.points[i - 1].position + shape.points[i + 1].position
                            - shape.points[i].position * 2.0f;
        sum += double(bend.Length());
    }
    return sum;
}

} // namespace

TEST_F(EditingTest, eachSmoothingStepMakesTheCurveSmootherAndKeepsTheEnds)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape rough = zigzag();
    double last = roughness(rough);
    for (int steps = 1; steps < 6; ++steps) {
        const CurveShape smooth = smoothed(rough, steps, surface());
        ASSERT_EQ(smooth.points.size(), rough.points.size());
        EXPECT_LT(roughness(smooth), last);
        last = roughness(smooth);
        EXPECT_EQ(smooth.points.first().position, rough.points.first().position);
        EXPECT_EQ(smooth.points.last().position, rough.points.last().position);
        expectOnSurface(smooth);
    }
    EXPECT_EQ(placesOf(smoothed(rough, 0, surface()).points), placesOf(rough.points));
}

TEST_F(EditingTest, stepsOneByOneAreStepsAtOnce)
{
    drawOn(sphere(30, 60));
    CurveShape byOne = ring(0.8f, 0.6f, 40);
    const CurveShape atOnce = smoothed(byOne, 3, surface());
    for (int i = 0; i < 3; ++i)
        byOne = smoothed(byOne, 1, surface());
    EXPECT_EQ(placesOf(byOne.points), placesOf(atOnce.points));
    EXPECT_TRUE(atOnce.closed);
    expectWellClosed(atOnce);
    expectOnSurface(atOnce);
}

TEST_F(EditingTest, movedPointTakesItsNeighboursLessAndLess)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape straight = line({1, 5, 0}, {9, 5, 0}, 17);
    const CurveShape pulled = moved(straight, 8, {0, 1, 0}, 2.0f, surface());
    expectOnSurface(pulled);
    EXPECT_NEAR(pulled.points[8].position.y, 6.0f, 1e-5f);
    for (int i = 0; i < 17; ++i) {
        const float distance = 0.5f * std::abs(float(i) - 8.0f);
        const float rest = std::max(0.0f, 1.0f - distance * distance / 4.0f);
        EXPECT_NEAR(pulled.points[i].position.y, 5.0f + rest * rest, 1e-4f);
    }
}

TEST_F(EditingTest, withoutReachOnlyThePointMoves)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape straight = line({1, 5, 0}, {9, 5, 0}, 17);
    const CurveShape pulled = moved(straight, 3, {0, 1, 0}, 0.0f, surface());
    for (int i = 0; i < 17; ++i)
        EXPECT_EQ(pulled.points[i].position.y, i == 3 ? 6.0f : 5.0f);
    EXPECT_EQ(placesOf(moved(straight, 17, {0, 1, 0}, 1.0f, surface()).points),
              placesOf(straight.points));
}

TEST_F(EditingTest, falloffGoesAroundTheSeamOfAClosedCurve)
{
    drawOn(gridOfQuads(10, 10), Matrix::Translation({-5, -5, 0}));
    const CurveShape loop = ring(3.0f, 0.0f, 40);
    const CurveShape pulled = moved(loop, 0, {1, 0, 0}, 2.0f, surface());
    EXPECT_TRUE(pulled.closed);
    expectWellClosed(pulled);
    for (int i = 1; i < 6; ++i) {
        const float ahead = (pulled.points[i].position - loop.points[i].position).Length();
        const float behind =
            (pulled.points[40 - i].position - loop.points[40 - i].position).Length();
        EXPECT_NEAR(ahead, behind, 2e-3f);
    }
    EXPECT_GT((pulled.points[39].position - loop.points[39].position).Length(), 0.5f);
}

TEST_F(EditingTest, movedCurveStaysOnTheSurface)
{
    std::mt19937 random(testSeed());
    drawOn(torus(2.0f, 0.7f, 60, 24));
    const CurveShape loop = ring(2.0f, 0.7f, 50);
    for (int round = 0; round < 50; ++round) {
        const int index = int(random() % 50u);
        expectOnSurface(moved(loop, index, randomVector(random, 0.5f), 1.0f, surface()));
        expectOnSurface(shifted(loop, randomVector(random, 0.5f), surface()));
    }
}

TEST_F(EditingTest, copyIsMovedByTheOffset)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape straight = line({1, 5, 0}, {9, 5, 0}, 17);
    const CurveShape copy = shifted(straight, {0, 0.7f, 3}, surface());
    ASSERT_EQ(copy.points.size(), 17);
    for (int i = 0; i < 17; ++i) {
        EXPECT_NEAR(copy.points[i].position.y, 5.7f, 1e-5f);
        EXPECT_NEAR(copy.points[i].position.x, straight.points[i].position.x, 1e-5f);
    }
}

TEST_F(EditingTest, reversingTwiceGivesTheCurveBack)
{
    drawOn(sphere(30, 60));
    for (const CurveShape &shape :
         {ring(0.8f, 0.6f, 30), line({0.9f, 0, 0.1f}, {0, 0.9f, 0.1f}, 12), CurveShape()}) {
        const CurveShape back = reversed(shape, surface());
        EXPECT_EQ(back.closed, shape.closed);
        expectWellClosed(back);
        if (!shape.closed && !shape.points.isEmpty()) {
            EXPECT_EQ(back.points.first().position, shape.points.last().position);
        }
        EXPECT_EQ(placesOf(reversed(back, surface()).points), placesOf(shape.points));
    }
}

TEST_F(EditingTest, resamplingMakesAnUnevenCurveEven)
{
    drawOn(sphere(30, 60));
    const CurveShape uneven =
        line({{1, 0, 0}, {0.99f, 0.1f, 0}, {0.3f, 0.9f, 0.1f}, {0.28f, 0.92f, 0.1f}});
    const CurveShape even = resampled(uneven, 0.05f, surface());
    expectEven(even);
    expectOnSurface(even);
    EXPECT_EQ(even.points.first().position, uneven.points.first().position);
    EXPECT_EQ(even.points.last().position, uneven.points.last().position);
    const CurveShape loop = resampled(ring(0.8f, 0.6f, 12), 0.1f, surface());
    EXPECT_TRUE(loop.closed);
    expectEven(loop);
    expectWellClosed(loop);
    EXPECT_NEAR(loop.points.size(), 50, 3);
}

TEST_F(EditingTest, openedCurveLosesItsClosingStretch)
{
    drawOn(sphere(30, 60));
    const CurveShape loop = ring(0.8f, 0.6f, 30);
    const CurveShape open = opened(loop);
    EXPECT_FALSE(open.closed);
    EXPECT_EQ(open.points.size(), 30);
    EXPECT_EQ(opened(open).points.size(), 30);
}

TEST_F(EditingTest, mirroredPartnerLiesAcrossThePlane)
{
    drawOn(sphere(30, 60), Matrix::Translation({5, 0, 0}));
    const CurveShape open = line({{5.9f, 0.1f, 0.2f}, {5.5f, 0.8f, 0.3f}, {5.1f, 1.0f, 0.5f}});
    const CurveShape partner = mirrored(open, 0, {5, 9, 9}, surface());
    ASSERT_EQ(partner.points.size(), 3);
    expectOnSurface(partner);
    for (int i = 0; i < 3; ++i) {
        const Vector a = open.points[i].position;
        const Vector b = partner.points[i].position;
        EXPECT_NEAR(a.x - 5, 5 - b.x, 0.01f);
        EXPECT_NEAR(a.y, b.y, 0.01f);
        EXPECT_NEAR(a.z, b.z, 0.01f);
    }
}

TEST_F(EditingTest, closedCurveHasAClosedPartnerAcrossEachAxis)
{
    drawOn(torus(2.0f, 0.5f, 40, 20));
    const CurveShape loop = ring(2.2f, 0.4f, 30);
    ASSERT_TRUE(loop.closed);
    for (int axis = 0; axis < 3; ++axis) {
        const CurveShape partner = mirrored(loop, axis, {}, surface());
        EXPECT_TRUE(partner.closed);
        EXPECT_EQ(partner.points.size(), loop.points.size());
        expectOnSurface(partner);
        expectWellClosed(partner);
    }
}
