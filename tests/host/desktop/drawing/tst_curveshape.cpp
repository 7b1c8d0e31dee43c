// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <limits>

using namespace orvane;

using ShapeTest = DrawingTest;

TEST_F(ShapeTest, closingPointIsAThousandthShortOfTheFirst)
{
    drawOn(gridOfQuads(4, 4));
    const CurveShape shape =
        closedThrough(line({{1, 1, 0}, {3, 1, 0}, {3, 3, 0}}).points, surface());
    EXPECT_TRUE(shape.closed);
    ASSERT_EQ(shape.points.size(), 4);
    EXPECT_NEAR(shape.points[3].position.x, 1.002f, 1e-6f);
    EXPECT_NEAR(shape.points[3].position.y, 1.002f, 1e-6f);
    expectOnSurface(shape);
    OrvaneCurve curve;
    curve.SetPoints(shape.points);
    curve.SetClosed(shape.closed);
    EXPECT_EQ(curve.DrawnPointCount(), 3);
    EXPECT_EQ(drawnPoints(shape).size(), 3);
}

TEST_F(ShapeTest, whatCannotEncloseAnythingStaysOpen)
{
    drawOn(gridOfQuads(4, 4));
    EXPECT_FALSE(closedThrough({}, surface()).closed);
    EXPECT_FALSE(closedThrough(line({{1, 1, 0}, {2, 2, 0}}).points, surface()).closed);
    const CurveShape back =
        closedThrough(line({{1, 1, 0}, {2, 2, 0}, {1, 1, 0}}).points, surface());
    EXPECT_FALSE(back.closed);
    EXPECT_EQ(back.points.size(), 3);
}

TEST_F(ShapeTest, closingPointOfACurveAroundACornerOfTheCubeNeverMeetsTheFirst)
{
    std::mt19937 random(testSeed());
    drawOn(cube(2.0f), Matrix::Translation({1000, -1000, 1000}));
    const Vector corner(1001, -999, 1001);
    for (int round = 0; round < 300; ++round) {
        const float size = round % 2 ? 2.0f : 0.3f;
        const CurveShape shape = closedThrough(
            line({corner, corner + randomVector(random, size), corner + randomVector(random, size)})
                .points,
            surface());
        if (!shape.closed)
            continue;
        expectWellClosed(shape);
        expectOnSurface(shape);
    }
}

TEST_F(ShapeTest, likeBeforeKeepsWhatACurveWas)
{
    drawOn(gridOfQuads(4, 4));
    const QVector<CurvePoint> points = line({{1, 1, 0}, {3, 1, 0}, {3, 3, 0}}).points;
    EXPECT_FALSE(likeBefore({points, false}, points, surface()).closed);
    EXPECT_TRUE(likeBefore(closedThrough(points, surface()), points, surface()).closed);
}

TEST_F(ShapeTest, placeWithoutASurfaceIsKeptUnbound)
{
    drawOn(new SubdivisionLevel);
    const CurvePoint point = onSurface(surface(), {1, 2, 3});
    EXPECT_EQ(point.position, Vector(1, 2, 3));
    EXPECT_FALSE(point.surfacePoint.IsOnValidFace());
}
