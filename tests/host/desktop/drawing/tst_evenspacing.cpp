// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;

class SpacingTest : public DrawingTest
{
protected:
    SpacingTest() { drawOn(gridOfQuads(10, 10)); }
};

// Half a circle or a whole one in the sheet.
QVector<Vector> arc(float radius, float turn, int count)
{
    QVector<Vector> places;
    for (int i = 0; i <= count; ++i) {
        const float angle = turn * float(i) / float(count);
        places.append({5 + radius * std::cos(angle), 5 + radius * std::sin(angle), 0});
    }
    return places;
}

// A turn by the angle (radians) in the middle of two legs.
QVector<Vector> bent(float first, float second, float angle)
{
    const Vector corner(5, 5, 0);
    const Vector back(-std::cos(angle), -std::sin(angle), 0);
    return {corner - Vector(first, 0, 0), corner, corner - back * second};
}

} // namespace

TEST_F(SpacingTest, halfACircleIsCutIntoEqualChords)
{
    for (int count : {1, 2, 3, 7, 40}) {
        const float spacing = Pi * 3 / float(count);
        const CurveShape shape = evenlySpaced(arc(3, Pi, 4000), false, spacing, surface());
        ASSERT_EQ(shape.points.size(), count + 1);
        expectEven(shape, 0.002f);
        const float chord = 6 * std::sin(Pi / float(2 * count));
        for (int i = 0; i < count; ++i) {
            const Vector stretch = shape.points[i + 1].position - shape.points[i].position;
            EXPECT_NEAR(stretch.Length(), chord, 0.002f * chord + 1e-4f);
        }
    }
}

TEST_F(SpacingTest, circleIsCutIntoARegularPolygon)
{
    QVector<Vector> circle = arc(3, 2 * Pi, 4000);
    circle.last() = circle.first();
    for (int count : {3, 5, 24}) {
        const float spacing = 2 * Pi * 3 / float(count);
        const CurveShape shape = evenlySpaced(circle, true, spacing, surface());
        ASSERT_EQ(shape.points.size(), count + 1);
        EXPECT_TRUE(shape.closed);
        expectWellClosed(shape);
        expectEven(shape, 0.005f);
        const float chord = 6 * std::sin(Pi / float(count));
        EXPECT_NEAR(lengthOf(placesOf(shape.points)), double(chord) * count, 0.01);
    }
}

TEST_F(SpacingTest, lineBentUpToARightAngleIsEvenWhateverItsLegs)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const QVector<Vector> line =
            bent(randomBetween(random, 0.3f, 4.0f), randomBetween(random, 0.3f, 4.0f),
                 randomBetween(random, -0.5f * Pi, 0.5f * Pi));
        const CurveShape shape =
            evenlySpaced(line, false, randomBetween(random, 0.1f, 0.5f), surface());
        expectEven(shape, 0.05f);
        EXPECT_EQ(shape.points.first().position, line.first());
        EXPECT_LT((shape.points.last().position - line.last()).Length(), 1e-5f);
    }
}

TEST_F(SpacingTest, nothingForALineWithoutLengthOrSpacing)
{
    EXPECT_TRUE(evenlySpaced({}, false, 0.1f, surface()).points.isEmpty());
    EXPECT_TRUE(evenlySpaced({Vector(1, 1, 0)}, false, 0.1f, surface()).points.isEmpty());
    EXPECT_TRUE(
        evenlySpaced({Vector(1, 1, 0), Vector(1, 1, 0)}, false, 0.1f, surface()).points.isEmpty());
    EXPECT_TRUE(evenlySpaced(arc(3, Pi, 40), false, 0.0f, surface()).points.isEmpty());
}

TEST_F(SpacingTest, sharpestTurnIsFoundAtTheCorner)
{
    QVector<Vector> line = arc(3, Pi, 40);
    line += QVector<Vector>{{3, 5, 0}, {4, 5, 0}};
    EXPECT_EQ(sharpestTurn(line, 0.5f), 40);
    EXPECT_EQ(sharpestTurn({Vector(0, 0, 0), Vector(1, 0, 0)}, 0.5f), 0);
    EXPECT_EQ(sharpestTurn({}, 0.5f), 0);
}

TEST_F(SpacingTest, unevennessIsTheWorstStretchAgainstTheMean)
{
    EXPECT_FLOAT_EQ(unevenness(line({{0, 0, 0}, {1, 0, 0}, {4, 0, 0}})), 0.5f);
    EXPECT_FLOAT_EQ(unevenness(line({{0, 0, 0}, {1, 0, 0}})), 0.0f);
    EXPECT_FLOAT_EQ(unevenness({}), 0.0f);
}
