// SPDX-License-Identifier: MIT
#include "graph/segmentcrossing.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <array>
#include <cfloat>
#include <cmath>
#include <iostream>
#include <limits>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

namespace {

const float NotANumber = std::numeric_limits<float>::quiet_NaN();
const float Infinity = std::numeric_limits<float>::infinity();

struct Wide
{
    long double x;
    long double y;
    long double z;
};

Wide wide(const Vector &v)
{
    return {(long double)(v.x), (long double)(v.y), (long double)(v.z)};
}

Wide minus(const Wide &a, const Wide &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Wide along(const Wide &p, const Wide &d, long double t)
{
    return {p.x + d.x * t, p.y + d.y * t, p.z + d.z * t};
}

long double dot(const Wide &a, const Wide &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// Where two lines are closest to each other, by the normal equations of their distance.
struct Closest
{
    long double s;           // along the first
    long double t;           // along the second
    long double sineSquared; // of their angle
};

Closest closestOf(const Wide &p, const Wide &d, const Wide &q, const Wide &e)
{
    const Wide r = minus(p, q);
    const long double a = dot(d, d);
    const long double b = dot(d, e);
    const long double c = dot(e, e);
    const long double f = dot(d, r);
    const long double g = dot(e, r);
    const long double det = a * c - b * b;
    return {(b * g - c * f) / det, (a * g - b * f) / det, det / (a * c)};
}

struct SegmentPairs
{
    Vector a0, a1, b0, b1;
};

SegmentPairs randomPair(std::mt19937 &random)
{
    const float scale = std::pow(10.0f, randomBetween(random, -6.0f, 6.0f));
    const bool isShifted = random() % 2 == 0;
    const Vector offset = isShifted ? randomVector(random, 4.0f * scale) : Vector();
    std::array<Vector, 4> p;
    for (Vector &v : p)
        v = randomVector(random, scale);
    if (random() % 2 == 0) { // flat, so that half of them cross
        for (Vector &v : p)
            v.z = 0.0f;
    }
    return {p[0] + offset, p[1] + offset, p[2] + offset, p[3] + offset};
}

// How far single precision may be off in the two fractions.
long double roundingOf(const SegmentPairs &pair, const Closest &exact)
{
    AxisAlignedBoundingBox box;
    for (const Vector &p : {pair.a0, pair.a1, pair.b0, pair.b1})
        box.Extend(p);
    const float shortest = qMin((pair.a1 - pair.a0).Length(), (pair.b1 - pair.b0).Length());
    const long double part = (long double)(shortest) / (0.5L * (long double)(box.Diagonal()));
    return 40.0L * (long double)(FLT_EPSILON) / (part * part * exact.sineSquared);
}

bool isNear(long double fraction, long double rounding)
{
    return std::fabs(fraction) < rounding || std::fabs(fraction - 1.0L) < rounding;
}

} // namespace

TEST(SegmentCrossing, agreesWithExtendedPrecisionOn100000PairsButWithinRoundingOfTheEnds)
{
    std::mt19937 random(testSeed());
    int judged = 0;
    int crossing = 0;
    for (int i = 0; i < 100000; ++i) {
        const SegmentPairs pair = randomPair(random);
        const Wide d = minus(wide(pair.a1), wide(pair.a0));
        const Wide e = minus(wide(pair.b1), wide(pair.b0));
        const Closest exact = closestOf(wide(pair.a0), d, wide(pair.b0), e);
        const long double rounding = roundingOf(pair, exact);
        if (!(rounding < 0.05L) || isNear(exact.s, rounding) || isNear(exact.t, rounding))
            continue;
        ++judged;
        const bool expected = exact.s > 0 && exact.s < 1 && exact.t > 0 && exact.t < 1;
        Vector point;
        float ta = -1.0f;
        float tb = -1.0f;
        ASSERT_EQ(segmentsCross(pair.a0, pair.a1, pair.b0, pair.b1, point, ta, tb), expected)
            << "pair " << i;
        const long double beyond = qMax(1.0L, fabsl(exact.s)); // far off, it is relative
        ASSERT_NEAR(double(ta), double(exact.s), double(rounding * beyond)) << "pair " << i;
        if (!expected)
            continue;
        ++crossing;
        ASSERT_NEAR(double(tb), double(exact.t), double(rounding)) << "pair " << i;
        const Wide place = along(wide(pair.b0), e, exact.t);
        const Wide off = minus(wide(point), place);
        const long double reach = sqrtl(dot(e, e)) * rounding
                                  + 4.0L * (long double)(FLT_EPSILON)*sqrtl(dot(place, place));
        ASSERT_LE(double(sqrtl(dot(off, off))), double(reach)) << "pair " << i;
    }
    std::cout << judged << " judged, " << crossing << " of them cross" << std::endl;
    EXPECT_GT(judged, 90000);
    EXPECT_GT(crossing, 10000);
}

TEST(SegmentCrossing, thePointIsTheOneOnTheSecondSegmentClosestToTheFirstWhateverTheGap)
{
    Vector point;
    float ta = 0.0f;
    float tb = 0.0f;
    ASSERT_TRUE(segmentsCross({-1, 0, 0}, {3, 0, 0}, {0, -1, 2}, {0, 1, 2}, point, ta, tb));
    EXPECT_NEAR(point.x, 0.0f, 1e-6f);
    EXPECT_NEAR(point.y, 0.0f, 1e-6f);
    EXPECT_NEAR(point.z, 2.0f, 1e-6f);
    EXPECT_NEAR(ta, 0.25f, 1e-6f);
    EXPECT_NEAR(tb, 0.5f, 1e-6f);
}

TEST(SegmentCrossing, aCrossingExactlyAtAnEndIsNoneAndTheFractionsTellSo)
{
    Vector point(9, 9, 9);
    float ta = 0.5f;
    float tb = 0.5f;
    EXPECT_FALSE(segmentsCross({-1, 0, 0}, {1, 0, 0}, {0, 0, 0}, {0, 1, 0}, point, ta, tb));
    EXPECT_EQ(ta, 0.5f);
    EXPECT_EQ(tb, 0.0f);
    EXPECT_FALSE(segmentsCross({-1, 0, 0}, {1, 0, 0}, {0, -1, 0}, {0, 0, 0}, point, ta, tb));
    EXPECT_EQ(tb, 1.0f);
    EXPECT_FALSE(segmentsCross({0, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {1, 0, 0}, point, ta, tb));
    EXPECT_EQ(ta, 0.0f);
    EXPECT_EQ(point, Vector(9, 9, 9)) << "nothing is written where nothing crosses";
}

TEST(SegmentCrossing, parallelAndDegenerateSegmentsDoNotCross)
{
    Vector point;
    float ta = 0.0f;
    float tb = 0.0f;
    const Vector p(0.5f, 0.25f, 0.125f);
    EXPECT_FALSE(segmentsCross({0, 0, 0}, {2, 0, 0}, {0, 1, 0}, {2, 1, 0}, point, ta, tb));
    EXPECT_EQ(ta, -1.0f);
    EXPECT_EQ(tb, -1.0f);
    EXPECT_FALSE(segmentsCross({0, 0, 0}, {2, 0, 0}, {1, 0, 0}, {3, 0, 0}, point, ta, tb));
    EXPECT_FALSE(segmentsCross({0, 0, 0}, {2, 0, 0}, {2, 0, 0}, {0, 0, 0}, point, ta, tb));
    EXPECT_FALSE(segmentsCross({0, 0, 0}, {1, 1, 0}, p, p, point, ta, tb));
    EXPECT_FALSE(segmentsCross(p, p, {0, 0, 0}, {1, 1, 0}, point, ta, tb));
    EXPECT_FALSE(segmentsCross(p, p, p, p, point, ta, tb));
}

TEST(SegmentCrossing, linesAHundredthOfAThousandthOfADegreeApartAreParallelAndTenTimesThatAreNot)
{
    const double degree = 0.017453292519943295;
    Vector point;
    float ta = 0.0f;
    float tb = 0.0f;
    for (double angle : {0.3e-5, 3e-5}) {
        const float rise = float(std::sin(angle * degree));
        const bool crosses =
            segmentsCross({-1, 0, 0}, {1, 0, 0}, {-1, -rise, 0}, {1, rise, 0}, point, ta, tb);
        EXPECT_EQ(crosses, angle > 1e-5) << angle;
    }
}

TEST(SegmentCrossing, placesThatAreNoFiniteNumbersNeverCross)
{
    for (float bad : {NotANumber, Infinity, -Infinity}) {
        for (int k = 0; k < 12; ++k) {
            std::array<Vector, 4> p = {Vector(-1, 0, 0), Vector(1, 0, 0), Vector(0, -1, 0),
                                       Vector(0, 1, 0)};
            Vector &v = p[std::size_t(k / 3)];
            (k % 3 == 0 ? v.x : k % 3 == 1 ? v.y : v.z) = bad;
            Vector point;
            float ta = 0.0f;
            float tb = 0.0f;
            EXPECT_FALSE(segmentsCross(p[0], p[1], p[2], p[3], point, ta, tb)) << bad << " " << k;
        }
    }
    Vector point;
    float ta = 0.0f;
    float tb = 0.0f;
    EXPECT_FALSE(segmentsCross({-FLT_MAX, 0, 0}, {FLT_MAX, 0, 0}, {0, -FLT_MAX, 0}, {0, FLT_MAX, 0},
                               point, ta, tb));
}

TEST(SegmentCrossing, closestPointOnLineAgreesWithTheClosedFormula)
{
    std::mt19937 random(testSeed());
    int judged = 0;
    for (int i = 0; i < 20000; ++i) {
        const Line a{randomVector(random), orvane::Normalized(randomVector(random))};
        const Line b{randomVector(random), orvane::Normalized(randomVector(random))};
        const Closest exact =
            closestOf(wide(a.point), wide(a.direction), wide(b.point), wide(b.direction));
        if (!(exact.sineSquared > 1e-3L))
            continue;
        ++judged;
        Vector point;
        bool found = false;
        closestPointOnLine(a, b, 3e-14, point, found);
        ASSERT_TRUE(found);
        const Wide off = minus(wide(point), along(wide(b.point), wide(b.direction), exact.t));
        const long double rounding = 40.0L * (long double)(FLT_EPSILON) / exact.sineSquared;
        ASSERT_LE(double(sqrtl(dot(off, off))), double(rounding)) << "pair " << i;
    }
    EXPECT_GT(judged, 19000);
}

TEST(SegmentCrossing, closestPointOnLineAnswersAPointOfALineWhereEpsilonStopsIt)
{
    const Line a{{1, 2, 3}, {1, 0, 0}};
    Vector point;
    bool found = true;
    closestPointOnLine(a, {{5, 5, 5}, {0, 2, 0}}, 4.5, point, found); // above the square of 2
    EXPECT_FALSE(found);
    EXPECT_EQ(point, a.point);
    closestPointOnLine(a, {{5, 5, 5}, {0, 2, 0}}, 3.0, point, found); // between 2 and its square
    EXPECT_TRUE(found);
    EXPECT_EQ(point, Vector(5, 5, 5));
    closestPointOnLine(a, {{5, 5, 5}, {0, 2, 0}}, 1.0, point, found);
    EXPECT_TRUE(found);
    EXPECT_EQ(point, Vector(5, 2, 5));
}

namespace {

bool plainOverlap(const AxisAlignedBoundingBox &a, const AxisAlignedBoundingBox &b)
{
    const auto zero = [](float v) {
        return v > -5e-5f && v < 5e-5f ? 0.0f : v;
    };
    const std::array<std::array<float, 4>, 3> axes = {
        {{a.minimum.x, a.maximum.x, b.minimum.x, b.maximum.x},
         {a.minimum.y, a.maximum.y, b.minimum.y, b.maximum.y},
         {a.minimum.z, a.maximum.z, b.minimum.z, b.maximum.z}}};
    for (const std::array<float, 4> &axis : axes) {
        if (zero(axis[0]) > zero(axis[3]) || zero(axis[2]) > zero(axis[1]))
            return false;
    }
    return true;
}

AxisAlignedBoundingBox boxOf(const Vector &p, const Vector &q)
{
    AxisAlignedBoundingBox box;
    box.Extend(p);
    box.Extend(q);
    return box;
}

} // namespace

TEST(SegmentCrossing, boxesOverlapAsTheirSnappedIntervalsDo)
{
    const std::array<float, 13> coordinates = {-1.0f,
                                               -1e-4f,
                                               -5e-5f,
                                               std::nextafter(-5e-5f, 0.0f),
                                               -1e-5f,
                                               -0.0f,
                                               0.0f,
                                               1e-5f,
                                               std::nextafter(5e-5f, 0.0f),
                                               5e-5f,
                                               std::nextafter(5e-5f, 1.0f),
                                               1e-4f,
                                               1.0f};
    std::mt19937 random(testSeed());
    const auto any = [&]() {
        return coordinates[random() % coordinates.size()];
    };
    const auto place = [&]() {
        const float x = any();
        const float y = any();
        return Vector(x, y, any());
    };
    int overlapping = 0;
    for (int i = 0; i < 100000; ++i) {
        const AxisAlignedBoundingBox a = boxOf(place(), place());
        const AxisAlignedBoundingBox b = boxOf(place(), place());
        const bool expected = plainOverlap(a, b);
        overlapping += expected ? 1 : 0;
        ASSERT_EQ(boxesOverlap(a, b), expected) << "boxes " << i;
        ASSERT_EQ(boxesOverlap(b, a), expected) << "boxes " << i;
        ASSERT_EQ(snappedBoxesOverlap(snappedBox(a), snappedBox(b)), expected) << "boxes " << i;
    }
    EXPECT_GT(overlapping, 10000);
    EXPECT_LT(overlapping, 90000);
}

TEST(SegmentCrossing, touchingBoxesOverlapAndSnappingClosesATinyGapAboutZero)
{
    const AxisAlignedBoundingBox left = boxOf({-1, 0, 0}, {-4e-5f, 1, 1});
    EXPECT_TRUE(boxesOverlap(left, boxOf({4e-5f, 0, 0}, {1, 1, 1})));
    EXPECT_FALSE(boxesOverlap(left, boxOf({5e-5f, 0, 0}, {1, 1, 1})));
    EXPECT_TRUE(boxesOverlap(boxOf({0, 0, 0}, {1, 1, 1}), boxOf({1, 1, 1}, {2, 2, 2})));
    EXPECT_FALSE(boxesOverlap(boxOf({2, 2, 2}, {3, 3, 3}), boxOf({3.00001f, 2, 2}, {4, 3, 3})));
    EXPECT_FALSE(boxesOverlap(AxisAlignedBoundingBox(), boxOf({-9, -9, -9}, {9, 9, 9})));
}
