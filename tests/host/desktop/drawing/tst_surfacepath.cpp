// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/surfacepath.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;

class SurfacePathTest : public DrawingTest
{
protected:
    float distanceToSurface(const Vector &place) const
    {
        return (hit(place).WorldPosition() - place).Length();
    }

    //! No stretch longer than step, none farther from the surface than reach.
    void expectFollows(const QVector<Vector> &line, float step, float reach) const
    {
        for (int i = 0; i + 1 < line.size(); ++i) {
            EXPECT_LE((line[i + 1] - line[i]).Length(), step);
            EXPECT_LE(distanceToSurface((line[i] + line[i + 1]) * 0.5f), reach);
        }
    }
};

} // namespace

TEST_F(SurfacePathTest, wayOnABallIsAGreatCircle)
{
    drawOn(sphere(90, 180));
    const Vector from = hit({1, 0.2f, 0.3f}).WorldPosition();
    const Vector to = hit({0.1f, 1, 0.4f}).WorldPosition();
    const QVector<QVector<Vector>> ways = followSurface({from, to}, 0.05f, surface());
    ASSERT_EQ(ways.size(), 1);
    EXPECT_EQ(ways[0].first(), from);
    EXPECT_EQ(ways[0].last(), to);
    expectFollows(ways[0], 0.05f, 0.002f);
    const double angle = std::acos(double(Dot(Normalized(from), Normalized(to))));
    EXPECT_NEAR(lengthOf(ways[0]), angle, 0.005);
}

TEST_F(SurfacePathTest, wayGoesAroundAnEdgeAndIntoACrease)
{
    drawOn(cube(2.0f));
    const QVector<QVector<Vector>> around =
        followSurface({Vector(0, 0, 1), Vector(1, 0, 0)}, 0.05f, surface());
    ASSERT_EQ(around.size(), 1);
    EXPECT_NEAR(lengthOf(around[0]), 2.0, 0.05);
    expectFollows(around[0], 0.05f, 0.02f);
    drawOn(floorAndWall(3));
    const QVector<QVector<Vector>> into =
        followSurface({Vector(2, 1, 0), Vector(0, 1, 2)}, 0.05f, surface());
    ASSERT_EQ(into.size(), 1);
    EXPECT_NEAR(lengthOf(into[0]), 4.0, 0.05);
    expectFollows(into[0], 0.05f, 0.02f);
}

TEST_F(SurfacePathTest, wayIsCutWhereTheSurfaceHasAGap)
{
    drawOn(meshOf(
        Topology::Quads,
        {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {5, 0, 0}, {9, 0, 0}, {9, 4, 0}, {5, 4, 0}},
        {0, 1, 2, 3, 4, 5, 6, 7}));
    const QVector<QVector<Vector>> ways =
        followSurface({Vector(1, 1, 0), Vector(8, 1, 0)}, 0.1f, surface());
    ASSERT_EQ(ways.size(), 2);
    EXPECT_NEAR(ways[0].last().x, 4.0f, 0.01f);
    EXPECT_NEAR(ways[1].first().x, 5.0f, 0.01f);
    for (const QVector<Vector> &way : ways)
        expectFollows(way, 0.1f, 1e-5f);
}

TEST_F(SurfacePathTest, pointsInOnePlaceAreOnePoint)
{
    drawOn(gridOfQuads(4, 4));
    const QVector<QVector<Vector>> ways =
        followSurface(QVector<Vector>(50, Vector(1, 1, 0)), 0.1f, surface());
    ASSERT_EQ(ways.size(), 1);
    EXPECT_EQ(ways[0].size(), 1);
    EXPECT_TRUE(followSurface({}, 0.1f, surface()).isEmpty());
}

TEST_F(SurfacePathTest, smoothingEvensOutJitterAndKeepsTheCircle)
{
    std::mt19937 random(testSeed());
    drawOn(gridOfQuads(10, 10));
    QVector<Vector> circle;
    for (int i = 0; i < 1000; ++i) {
        const float angle = 2 * Pi * float(i) / 1000.0f;
        const Vector out(std::cos(angle), std::sin(angle), 0);
        circle.append(Vector(5, 5, 0) + out * (3.0f + randomBetween(random, -0.05f, 0.05f)));
    }
    circle.append(circle.first());
    const QVector<Vector> smooth = smoothedAlong(circle, true, 0.3f, 0.05f, surface());
    EXPECT_EQ(smooth.first(), smooth.last());
    for (const Vector &place : smooth) {
        EXPECT_EQ(place.z, 0.0f);
        EXPECT_NEAR((place - Vector(5, 5, 0)).Length(), 3.0f, 0.03f);
    }
}

TEST_F(SurfacePathTest, smoothingAStraightLineLeavesItAndItsEnds)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> straight = {{1, 5, 0}, {9, 5, 0}};
    const QVector<Vector> smooth = smoothedAlong(straight, false, 0.5f, 0.1f, surface());
    EXPECT_EQ(smooth.size(), 81);
    EXPECT_EQ(smooth.first(), straight.first());
    EXPECT_EQ(smooth.last(), straight.last());
    for (int i = 0; i < smooth.size(); ++i) {
        EXPECT_NEAR(smooth[i].x, 1.0f + 0.1f * float(i), 1e-4f);
        EXPECT_NEAR(smooth[i].y, 5.0f, 1e-5f);
    }
    EXPECT_EQ(smoothedAlong({Vector(1, 5, 0)}, false, 0.5f, 0.1f, surface()).size(), 1);
}
