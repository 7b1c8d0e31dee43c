// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace orvane;

namespace {

const QVector<Vector> Corner = {{0, 0, 0}, {2, 0, 0}, {2, 1, 0}};

QVector<Vector> randomLine(std::mt19937 &random)
{
    QVector<Vector> line;
    for (int i = 0; i < 20; ++i)
        line.append(randomVector(random));
    return line;
}

} // namespace

TEST(CurveMeasure, lengthIsTheSumOfTheStretches)
{
    EXPECT_DOUBLE_EQ(lengthOf(Corner), 3.0);
    EXPECT_DOUBLE_EQ(lengthUpTo(Corner, 1.5), 2.5);
    EXPECT_DOUBLE_EQ(lengthUpTo(Corner, 9.0), 3.0);
    EXPECT_DOUBLE_EQ(lengthUpTo(Corner, -1.0), 0.0);
    EXPECT_DOUBLE_EQ(lengthOf({}), 0.0);
    EXPECT_DOUBLE_EQ(lengthOf({Vector(1, 2, 3)}), 0.0);
}

TEST(CurveMeasure, nearestPlaceLiesOnTheNearestStretch)
{
    const PlaceOnLine place = nearestOnLine(Corner, {3, 0.25f, 0});
    EXPECT_EQ(place.stretch, 1);
    EXPECT_FLOAT_EQ(place.fraction, 0.25f);
    EXPECT_EQ(place.place, Vector(2, 0.25f, 0));
    EXPECT_FLOAT_EQ(place.distance, 1.0f);
    EXPECT_DOUBLE_EQ(place.Parameter(), 1.25);
}

TEST(CurveMeasure, nearestOfAPointAndOfNothing)
{
    EXPECT_EQ(nearestOnLine({}, {1, 0, 0}).stretch, -1);
    const PlaceOnLine place = nearestOnLine({Vector(1, 0, 0)}, {1, 2, 0});
    EXPECT_EQ(place.stretch, 0);
    EXPECT_FLOAT_EQ(place.distance, 2.0f);
}

TEST(CurveMeasure, nearestPlaceAgreesWithTryingManyPlaces)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 30; ++round) {
        const QVector<Vector> line = randomLine(random);
        const Vector to = randomVector(random);
        float best = 1e9f;
        for (int i = 0; i <= 19000; ++i)
            best = std::min(best, (placeAt(line, i / 1000.0) - to).Length());
        EXPECT_NEAR(nearestOnLine(line, to).distance, best, 1e-3f);
        EXPECT_LE(nearestOnLine(line, to).distance, best + 1e-6f);
    }
}

TEST(CurveMeasure, tangentFollowsTheStretchAndHalvesACorner)
{
    EXPECT_EQ(tangentAt(Corner, 0.5), Vector(1, 0, 0));
    EXPECT_EQ(tangentAt(Corner, 0.0), Vector(1, 0, 0));
    EXPECT_EQ(tangentAt(Corner, 7.0), Vector(0, 1, 0));
    const Vector middle = tangentAt(Corner, 1.0);
    EXPECT_NEAR(middle.x, std::sqrt(0.5f), 1e-6f);
    EXPECT_NEAR(middle.y, std::sqrt(0.5f), 1e-6f);
    EXPECT_EQ(tangentAt({Vector(1, 1, 1)}, 0.0), Vector());
}

TEST(CurveMeasure, partKeepsTheCornersBetweenItsEnds)
{
    const QVector<Vector> part = partOf(Corner, 0.5, 1.5);
    ASSERT_EQ(part.size(), 3);
    EXPECT_EQ(part[0], Vector(1, 0, 0));
    EXPECT_EQ(part[1], Vector(2, 0, 0));
    EXPECT_EQ(part[2], Vector(2, 0.5f, 0));
    EXPECT_EQ(partOf(Corner, 0.0, 2.0), Corner);
    EXPECT_EQ(partOf(Corner, 1.0, 2.0), Corner.mid(1));
}

TEST(CurveMeasure, partsAddUpToTheWhole)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 50; ++round) {
        const QVector<Vector> line = randomLine(random);
        const double cut = double(randomBetween(random, 0.0f, 19.0f));
        EXPECT_NEAR(lengthOf(partOf(line, 0.0, cut)) + lengthOf(partOf(line, cut, 19.0)),
                    lengthOf(line), 1e-4);
        EXPECT_NEAR(lengthOf(partOf(line, 0.0, cut)), lengthUpTo(line, cut), 1e-4);
    }
}
