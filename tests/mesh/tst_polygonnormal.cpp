// SPDX-License-Identifier: MIT
#include "mesh/meshbuilder.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iostream>
#include <utility>

using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

using Face = QVector<int>;

MeshBuilder builderOf(const QVector<Vector> &positions)
{
    MeshBuilder builder;
    builder.positions = positions;
    builder.normals.fill({0, 0, 1}, positions.size());
    return builder;
}

Face wholeFace(const MeshBuilder &builder)
{
    Face face;
    for (int i = 0; i < builder.positions.size(); ++i)
        face.append(i);
    return face;
}

// What corner i turns about, and the angle between that and what corner 0 does.
struct Corner
{
    Vector turn;
    double angle;
};

QVector<Corner> cornersOf(const QVector<Vector> &p)
{
    QVector<Corner> corners;
    const int n = p.size();
    for (int i = 0; i < n; ++i) {
        const Vector previous = p[(i + n - 1) % n] - p[i];
        const Vector next = p[(i + 1) % n] - p[i];
        const Vector turn = orvane::Normalized(previous & next);
        const Vector first = i == 0 ? turn : corners[0].turn;
        const float cosine = turn.x * first.x + turn.y * first.y + turn.z * first.z;
        corners.append({turn, std::acos(double(cosine))});
    }
    return corners;
}

bool isConcaveByDefinition(const QVector<Corner> &corners)
{
    return std::any_of(corners.begin() + 1, corners.end(),
                       [](const Corner &corner) { return corner.angle > 3.041592653589793; });
}

Vector normalByDefinition(const QVector<Corner> &corners, int &counted)
{
    Vector sum = corners[0].turn;
    counted = 1;
    for (int i = 1; i < corners.size(); ++i) {
        if (corners[i].angle < 2.827433388230814) {
            sum = sum + corners[i].turn;
            ++counted;
        }
    }
    sum.Normalize();
    return counted == 1 && corners.size() >= 4 ? Vector(-sum.x, -sum.y, -sum.z) : sum;
}

bool isSameBits(const Vector &a, const Vector &b)
{
    return std::memcmp(&a, &b, sizeof(Vector)) == 0;
}

// Flat polygons turned in space, bumpy ones, and some with corners that coincide or are collinear.
QVector<Vector> randomPolygon(std::mt19937 &random)
{
    const int count = 3 + int(random() % 10u);
    const float bump = random() % 2u ? 0.0f : randomBetween(random, 0.0f, 2.0f);
    const orvane::Matrix turn = randomPlacement(random);
    QVector<Vector> positions;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * Pi * i / count;
        const double radius = double(randomBetween(random, 0.2f, 1.0f));
        const Vector flat(float(radius * std::cos(angle)), float(radius * std::sin(angle)), 0.0f);
        positions.append(turn.Transform(flat + randomVector(random, bump), 1.0f));
        if (i > 0 && random() % 12u == 0u)
            positions.last() = positions[i - 1];
    }
    return positions;
}

// A pentagon in the plane z = 0 whose corner 2 is folded about the line through its neighbours,
// so that what it turns about leans by an angle from what the others do.
MeshBuilder foldedPentagon(double radians)
{
    return builderOf({{-2, 2, 0},
                      {-2, 0, 0},
                      {0, float(-std::cos(radians)), float(-std::sin(radians))},
                      {2, 0, 0},
                      {2, 2, 0}});
}

} // namespace

TEST(PolygonNormal, looksAwayFromTheSideThatSeesTheFaceCounterClockwise)
{
    const MeshBuilder square = builderOf({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}});
    EXPECT_EQ(square.polygonNormal({0, 1, 2, 3}), Vector(0, 0, -1));
    EXPECT_EQ(square.polygonNormal({3, 2, 1, 0}), Vector(0, 0, 1));
    EXPECT_EQ(square.polygonNormal({0, 1, 2}), Vector(0, 0, -1));
}

TEST(PolygonNormal, leavesOutCornersThatTurnAgainstTheFirst)
{
    const MeshBuilder dart = builderOf({{0, 0, 0}, {3, 0, 0}, {1, 1, 0}, {0, 3, 0}});
    EXPECT_EQ(dart.polygonNormal({0, 1, 2, 3}), Vector(0, 0, -1));
    EXPECT_EQ(dart.polygonNormal({1, 2, 3, 0}), Vector(0, 0, -1));
}

TEST(PolygonNormal, turnsRoundWhenTheFirstCornerIsTheOddOneOut)
{
    const MeshBuilder dart = builderOf({{0, 0, 0}, {3, 0, 0}, {1, 1, 0}, {0, 3, 0}});
    EXPECT_EQ(dart.polygonNormal({2, 3, 0, 1}), Vector(0, 0, -1));
}

TEST(PolygonNormal, aTriangleIsNeverTurnedRound)
{
    // Every corner of a triangle turns the same way, so a lone first one comes of rounding alone.
    std::mt19937 random(testSeed());
    int alone = 0;
    for (int run = 0; run < 2000; ++run) {
        const MeshBuilder builder = builderOf(
            {randomVector(random, 5.0f), randomVector(random, 5.0f), randomVector(random, 5.0f)});
        const QVector<Corner> corners = cornersOf(builder.positions);
        int counted = 0;
        normalByDefinition(corners, counted);
        alone += counted == 1;
        ASSERT_GT(orvane::Dot(builder.polygonNormal({0, 1, 2}), corners[0].turn), 0.0f);
    }
    EXPECT_GT(alone, 0);
}

TEST(PolygonNormal, aFaceWithoutCornersIsNotConcaveAndHasNoNormal)
{
    const MeshBuilder builder;
    EXPECT_FALSE(builder.isConcave({}));
    EXPECT_EQ(builder.polygonNormal({}), Vector());
}

TEST(PolygonNormal, aCornerIsConcaveBeyondThePiLessATenth)
{
    for (double from : {1.0, -1.0}) {
        EXPECT_FALSE(foldedPentagon(0.0).isConcave({0, 1, 2, 3, 4}));
        EXPECT_FALSE(foldedPentagon(from * (Pi - 0.101)).isConcave({0, 1, 2, 3, 4})) << from;
        EXPECT_TRUE(foldedPentagon(from * (Pi - 0.099)).isConcave({0, 1, 2, 3, 4})) << from;
    }
    EXPECT_TRUE(foldedPentagon(Pi).isConcave({0, 1, 2, 3, 4}));
    EXPECT_TRUE(foldedPentagon(Pi).isConcave({2, 3, 4, 0, 1})) << "seen from the odd corner";
}

TEST(PolygonNormal, aCornerCountsUpToNineTenthsOfAHalfTurn)
{
    for (const auto &[radians, expectedCount] : {std::pair(0.899 * Pi, 5), {0.901 * Pi, 4}}) {
        const MeshBuilder folded = foldedPentagon(radians);
        int counted = 0;
        const Vector expected = normalByDefinition(cornersOf(folded.positions), counted);
        EXPECT_EQ(counted, expectedCount);
        EXPECT_TRUE(isSameBits(folded.polygonNormal({0, 1, 2, 3, 4}), expected)) << radians;
    }
}

TEST(PolygonNormal, agreesBitForBitWithItsDefinitionRoundingBeyondOneIncluded)
{
    std::mt19937 random(testSeed());
    int concave = 0;
    int beyond = 0;
    int turnedRound = 0;
    for (int run = 0; run < 20000; ++run) {
        const MeshBuilder builder = builderOf(randomPolygon(random));
        const Face face = wholeFace(builder);
        const QVector<Corner> corners = cornersOf(builder.positions);
        int counted = 0;
        const Vector normal = normalByDefinition(corners, counted);
        ASSERT_TRUE(isSameBits(builder.polygonNormal(face), normal)) << "run " << run;
        ASSERT_EQ(builder.isConcave(face), isConcaveByDefinition(corners)) << "run " << run;
        concave += builder.isConcave(face);
        turnedRound += counted == 1 && face.size() >= 4;
        for (const Corner &corner : corners)
            beyond += std::isnan(corner.angle);
    }
    std::cout << concave << " concave, " << beyond << " angles beyond rounding, " << turnedRound
              << " normals turned round" << std::endl;
    EXPECT_GT(concave, 1000);
    EXPECT_GT(beyond, 1000);
    EXPECT_GT(turnedRound, 10);
}
