// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/stroke.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;

StrokeSettings settings(float spacing)
{
    return {spacing, spacing, 2.0f * spacing, 10.0f * spacing};
}

class StrokeTest : public DrawingTest
{
protected:
    QVector<CurveShape> drawn(const QVector<Vector> &near, const StrokeSettings &how) const
    {
        Stroke stroke(how);
        for (const Vector &place : near)
            stroke.Add(hit(place));
        return stroke.Finish(surface());
    }

    //! The one curve of a stroke.
    CurveShape curve(const QVector<Vector> &near, const StrokeSettings &how) const
    {
        const QVector<CurveShape> shapes = drawn(near, how);
        EXPECT_EQ(shapes.size(), 1);
        return shapes.isEmpty() ? CurveShape() : shapes.first();
    }
};

QVector<Vector> between(const Vector &from, const Vector &to, int count)
{
    QVector<Vector> places;
    for (int i = 0; i < count; ++i)
        places.append(from + (to - from) * (float(i) / float(count - 1)));
    return places;
}

QVector<Vector> circle(float radius, float height, int count, float turns = 1.0f)
{
    QVector<Vector> places;
    for (int i = 0; i < count; ++i) {
        const float angle = 2 * Pi * turns * float(i) / float(count - 1);
        places.append({radius * std::cos(angle), radius * std::sin(angle), height});
    }
    return places;
}

float rootMeanSquare(const QVector<Vector> &places, float y)
{
    float sum = 0.0f;
    for (const Vector &place : places)
        sum += (place.y - y) * (place.y - y);
    return std::sqrt(sum / float(places.size()));
}

// A smooth wandering line of directions; one that comes back to its start goes around once.
QVector<Vector> wander(std::mt19937 &random, int count, bool comesBack)
{
    const float a = comesBack ? 1.0f : randomBetween(random, 0.5f, 3.0f);
    const float b = comesBack ? float(1 + random() % 3u) : randomBetween(random, 0.5f, 3.0f);
    const float phase = randomBetween(random, 0.0f, 2 * Pi);
    const float length = comesBack ? 1.0f : randomBetween(random, 0.2f, 1.0f);
    QVector<Vector> places;
    for (int i = 0; i < count; ++i) {
        const float t = length * 2 * Pi * float(i) / float(count - 1);
        places.append(
            {3 * std::cos(a * t + phase), 3 * std::sin(a * t + phase), 1.5f * std::sin(b * t)});
    }
    return places;
}

} // namespace

TEST_F(StrokeTest, clickMakesNoCurve)
{
    drawOn(gridOfQuads(10, 10));
    EXPECT_TRUE(drawn({}, settings(0.5f)).isEmpty());
    EXPECT_TRUE(drawn({{3, 3, 0}}, settings(0.5f)).isEmpty());
    EXPECT_TRUE(drawn(QVector<Vector>(500, Vector(3, 3, 0)), settings(0.5f)).isEmpty());
    EXPECT_TRUE(drawn({{3, 3, 0}, {3.1f, 3, 0}, {3, 3.05f, 0}}, settings(0.5f)).isEmpty());
}

TEST_F(StrokeTest, strokeBesideTheSurfaceMakesNoCurve)
{
    drawOn(gridOfQuads(10, 10));
    Stroke stroke(settings(0.5f));
    for (int i = 0; i < 100; ++i)
        stroke.Add(SurfacePoint());
    EXPECT_TRUE(stroke.Preview().isEmpty());
    EXPECT_TRUE(stroke.Finish(surface()).isEmpty());
}

TEST_F(StrokeTest, emptyMeshIsNoTrouble)
{
    drawOn(new SubdivisionLevel);
    EXPECT_TRUE(drawn({{3, 3, 0}, {4, 4, 0}}, settings(0.5f)).isEmpty());
}

TEST_F(StrokeTest, twoPointsMakeAStraightCurve)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape shape = curve({{1, 1, 0}, {4.2f, 1, 0}}, settings(0.5f));
    EXPECT_FALSE(shape.closed);
    ASSERT_EQ(shape.points.size(), 7);
    expectEven(shape, 0.001f);
    expectOnSurface(shape);
    EXPECT_EQ(shape.points.first().position, Vector(1, 1, 0));
    EXPECT_EQ(shape.points.last().position, Vector(4.2f, 1, 0));
}

TEST_F(StrokeTest, shortStrokeIsOneStretch)
{
    drawOn(gridOfQuads(10, 10));
    EXPECT_EQ(curve({{1, 1, 0}, {1.4f, 1, 0}}, settings(0.5f)).points.size(), 2);
}

TEST_F(StrokeTest, jitterIsEvenedOut)
{
    drawOn(gridOfQuads(20, 10));
    std::mt19937 random(testSeed());
    QVector<Vector> places = between({1, 5, 0}, {19, 5, 0}, 2000);
    for (Vector &place : places)
        place.y += randomBetween(random, -0.15f, 0.15f);
    places.first().y = places.last().y = 5.0f;
    const CurveShape shape = curve(places, settings(0.5f));
    expectEven(shape);
    expectOnSurface(shape);
    const float before = rootMeanSquare(places, 5.0f);
    const float after = rootMeanSquare(placesOf(shape.points), 5.0f);
    std::cout << "jitter before " << before << ", after " << after << std::endl;
    EXPECT_LT(after, before / 3.0f);
    EXPECT_NEAR(lengthOf(placesOf(shape.points)), 18.0, 0.3);
}

TEST_F(StrokeTest, previewIsThinnedAndEndsAtThePointer)
{
    drawOn(gridOfQuads(20, 10));
    Stroke stroke(settings(0.5f));
    for (const Vector &place : between({1, 5, 0}, {19, 5, 0}, 5000)) {
        stroke.Add(hit(place));
        ASSERT_EQ(stroke.Preview().last().position, hit(place).WorldPosition());
    }
    EXPECT_LT(stroke.Preview().size(), 18 * 16 + 2);
    EXPECT_EQ(stroke.Preview().first().position, Vector(1, 5, 0));
    EXPECT_FALSE(stroke.WouldClose());
}

TEST_F(StrokeTest, circleOnASphereClosesAndKeepsItsRadius)
{
    drawOn(sphere(60, 120));
    for (float overlap : {0.98f, 1.0f, 1.02f}) {
        Stroke stroke(settings(0.05f));
        const float height = std::sqrt(1.0f - 0.6f * 0.6f);
        for (const Vector &place : circle(0.6f, height, 700, overlap))
            stroke.Add(hit(place));
        EXPECT_TRUE(stroke.WouldClose());
        const QVector<CurveShape> shapes = stroke.Finish(surface());
        ASSERT_EQ(shapes.size(), 1);
        const CurveShape &shape = shapes.first();
        EXPECT_TRUE(shape.closed);
        expectWellClosed(shape);
        expectOnSurface(shape);
        expectEven(shape);
        EXPECT_NEAR(lengthOf(placesOf(shape.points)), 2 * Pi * 0.6, 0.02);
        for (const CurvePoint &point : shape.points)
            EXPECT_NEAR(std::hypot(point.position.x, point.position.y), 0.6f, 0.004f);
    }
}

TEST_F(StrokeTest, strokeThatEndsFarFromItsStartStaysOpen)
{
    drawOn(sphere(60, 120));
    const CurveShape shape = curve(circle(0.6f, 0.8f, 700, 0.9f), settings(0.05f));
    EXPECT_FALSE(shape.closed);
    expectEven(shape);
}

TEST_F(StrokeTest, shortScribbleNearItsStartDoesNotClose)
{
    drawOn(gridOfQuads(10, 10));
    for (const CurveShape &shape : drawn({{3, 3, 0}, {3.6f, 3, 0}, {3, 3.2f, 0}}, settings(0.5f)))
        EXPECT_FALSE(shape.closed);
}

TEST_F(StrokeTest, curveGoesOverAnEdgeWithoutCuttingIt)
{
    drawOn(cube(2.0f));
    const CurveShape shape =
        curve({{-0.9f, 0.1f, 1}, {0.9f, 0.2f, 1}, {1, 0.2f, 0.5f}, {1, 0.3f, -0.8f}},
              {0.1f, 0.1f, 0.1f, 5.0f});
    expectEven(shape);
    expectOnSurface(shape);
    const PlaceOnLine corner = nearestOnLine(placesOf(shape.points), {1, 0.2f, 1});
    EXPECT_LT(corner.distance, 0.08f);
    EXPECT_NEAR(lengthOf(placesOf(shape.points)), 1.9 + 1.8, 0.15);
}

TEST_F(StrokeTest, twoHitsOnBothSidesOfTheCubeFollowTheSurface)
{
    drawOn(cube(2.0f));
    const CurveShape shape = curve({{0, 0.1f, 1}, {1, 0.1f, 0}}, {0.1f, 0.1f, 0.1f, 5.0f});
    expectEven(shape);
    expectOnSurface(shape);
    EXPECT_LT(nearestOnLine(placesOf(shape.points), {1, 0.1f, 1}).distance, 0.1f);
}

TEST_F(StrokeTest, curveGoesIntoACrease)
{
    drawOn(floorAndWall(4));
    const CurveShape shape = curve({{3, 1, 0}, {0, 1.5f, 2}}, {0.2f, 0.2f, 0.1f, 9.0f});
    expectEven(shape);
    expectOnSurface(shape);
    float lowest = 9.0f;
    for (const CurvePoint &point : shape.points)
        lowest = std::min(lowest, point.position.x + point.position.z);
    EXPECT_LT(lowest, 0.15f);
}

TEST_F(StrokeTest, shortGapIsBridgedAndALongOneCuts)
{
    drawOn(gridOfQuads(20, 10));
    const QVector<Vector> left = between({1, 5, 0}, {5, 5, 0}, 100);
    EXPECT_EQ(drawn(left + between({8, 5, 0}, {12, 5, 0}, 100), settings(0.5f)).size(), 1);
    const QVector<CurveShape> cut =
        drawn(left + between({13, 5, 0}, {18, 5, 0}, 100), settings(0.5f));
    ASSERT_EQ(cut.size(), 2);
    EXPECT_EQ(cut[0].points.last().position, Vector(5, 5, 0));
    EXPECT_EQ(cut[1].points.first().position, Vector(13, 5, 0));
}

TEST_F(StrokeTest, loopWithALongGapDoesNotClose)
{
    drawOn(sphere(60, 120));
    QVector<Vector> places = circle(0.6f, 0.8f, 700);
    places.remove(200, 300);
    Stroke stroke(settings(0.05f));
    for (const Vector &place : places)
        stroke.Add(hit(place));
    EXPECT_FALSE(stroke.WouldClose());
    const QVector<CurveShape> shapes = stroke.Finish(surface());
    ASSERT_EQ(shapes.size(), 2);
    for (const CurveShape &shape : shapes)
        EXPECT_FALSE(shape.closed);
}

TEST_F(StrokeTest, turningBackSharplyCutsRatherThanSpacingUnevenly)
{
    drawOn(gridOfQuads(20, 10));
    for (float back : {6.2f, 8.1f, 9.45f, 11.3f}) {
        const QVector<Vector> there = between({3, 5, 0}, {12, 5, 0}, 300);
        const QVector<Vector> andBack = between({12, 5.02f, 0}, {12 - back, 5.02f, 0}, 300);
        StrokeSettings how = settings(0.5f);
        how.closeDistance = 0.0f;
        how.smoothing = 0.0f; // it would round the turn off
        const QVector<CurveShape> shapes = drawn(there + andBack, how);
        ASSERT_GE(shapes.size(), 1);
        ASSERT_LE(shapes.size(), 2);
        double length = 0.0;
        for (const CurveShape &shape : shapes) {
            expectEven(shape);
            expectOnSurface(shape);
            length += lengthOf(placesOf(shape.points));
        }
        EXPECT_NEAR(length, 9.0 + double(back), 1.05); // a step may leap over the turn
    }
}

TEST_F(StrokeTest, leapWithoutAWayAlongTheSurfaceCuts)
{
    // Two sheets side by side with a gap between them.
    const QVector<Vector> positions = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0},
                                       {5, 0, 0}, {9, 0, 0}, {9, 4, 0}, {5, 4, 0}};
    drawOn(meshOf(Topology::Quads, positions, {0, 1, 2, 3, 4, 5, 6, 7}));
    const QVector<CurveShape> cut = drawn({{1, 1, 0}, {8, 3, 0}}, {0.2f, 0.2f, 0.1f, 50.0f});
    ASSERT_EQ(cut.size(), 2);
    for (const CurveShape &shape : cut) {
        expectOnSurface(shape);
        expectEven(shape);
    }
    EXPECT_LE(cut[0].points.last().position.x, 4.0f);
    EXPECT_GE(cut[1].points.first().position.x, 5.0f);
}

TEST_F(StrokeTest, randomStrokesAreEvenOnSphereAndTorus)
{
    std::mt19937 random(testSeed());
    int closed = 0;
    for (int round = 0; round < 60; ++round) {
        drawOn(round % 2 ? torus(2.0f, 0.7f, 60, 24) : sphere(30, 60));
        QVector<Vector> places = wander(random, 400, round % 3 == 0);
        for (Vector &place : places)
            place += randomVector(random, 0.01f);
        const float spacing = randomBetween(random, 0.05f, 0.2f);
        for (const CurveShape &shape : drawn(places, settings(spacing))) {
            expectEven(shape);
            expectOnSurface(shape);
            expectWellClosed(shape);
            closed += shape.closed;
        }
        Kernel()->Scene()->Clear();
    }
    std::cout << closed << " of the strokes closed" << std::endl;
    EXPECT_GE(closed, 20);
}

TEST_F(StrokeTest, drawnBackwardsItIsTheSameCurve)
{
    std::mt19937 random(testSeed());
    drawOn(torus(2.0f, 0.7f, 60, 24));
    for (int round = 0; round < 20; ++round) {
        QVector<Vector> places = wander(random, 300, false);
        StrokeSettings how = settings(0.1f);
        how.closeDistance = 0.0f;
        const QVector<CurveShape> forward = drawn(places, how);
        std::reverse(places.begin(), places.end());
        const QVector<CurveShape> back = drawn(places, how);
        ASSERT_EQ(forward.size(), 1);
        ASSERT_EQ(back.size(), 1);
        EXPECT_NEAR(forward[0].points.size(), back[0].points.size(), 1);
        const QVector<Vector> line = placesOf(back[0].points);
        for (const CurvePoint &point : forward[0].points)
            EXPECT_LT(nearestOnLine(line, point.position).distance, 0.02f);
    }
}
