// SPDX-License-Identifier: MIT
#include "mesh/polygontessellator.h"
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <limits>

using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

PolygonTessellator tessellatorOf(const QVector<Vector> &points)
{
    PolygonTessellator tessellator;
    for (const Vector &point : points)
        tessellator.addPoint(point);
    return tessellator;
}

QList<int> trianglesOf(const QVector<Vector> &points)
{
    QList<int> corners;
    tessellatorOf(points).process(corners);
    return corners;
}

double doubledArea(const Vector &a, const Vector &b, const Vector &c)
{
    return (double(b.x) - a.x) * (double(c.y) - a.y) - (double(b.y) - a.y) * (double(c.x) - a.x);
}

void expectCounterClockwise(const QVector<Vector> &points, const QList<int> &corners)
{
    ASSERT_EQ(corners.size() % 3, 0);
    for (int i = 0; i < corners.size(); i += 3) {
        const double area =
            doubledArea(points[corners[i]], points[corners[i + 1]], points[corners[i + 2]]);
        EXPECT_GT(area, 0.0) << "triangle " << i / 3;
    }
}

QVector<Vector> reversed(QVector<Vector> points)
{
    std::reverse(points.begin(), points.end());
    return points;
}

QVector<Vector> regularPolygon(int corners, float radius)
{
    QVector<Vector> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * Pi * i / corners;
        points.append(Vector(float(std::cos(angle)), float(std::sin(angle)), 0.0f) * radius);
    }
    return points;
}

const QVector<Vector> Square{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
const QVector<Vector> LShape{{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}};

} // namespace

TEST(PolygonTessellator, aSquareGivesTwoCounterClockwiseTrianglesWhicheverWayItRuns)
{
    for (const QVector<Vector> &square : {Square, reversed(Square)}) {
        const QList<int> corners = trianglesOf(square);
        EXPECT_EQ(corners.size(), 6);
        expectCounterClockwise(square, corners);
    }
}

TEST(PolygonTessellator, anLShapedHexagonGivesFourTrianglesAndNeverOneAcrossTheNotch)
{
    for (const QVector<Vector> &shape : {LShape, reversed(LShape)}) {
        for (int first = 0; first < shape.size(); ++first) {
            QVector<Vector> turned = shape;
            std::rotate(turned.begin(), turned.begin() + first, turned.end());
            const QList<int> corners = trianglesOf(turned);
            ASSERT_EQ(corners.size(), 12) << first;
            expectCounterClockwise(turned, corners);
            for (int i = 0; i < corners.size(); i += 3) {
                const Vector middle =
                    (turned[corners[i]] + turned[corners[i + 1]] + turned[corners[i + 2]]) / 3.0f;
                EXPECT_FALSE(middle.x > 1.0f && middle.y > 1.0f) << "across the notch";
            }
        }
    }
}

TEST(PolygonTessellator, threeCollinearPointsGiveNoTriangleAsTheTriesRunOut)
{
    const QVector<Vector> line{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}};
    EXPECT_TRUE(trianglesOf(line).isEmpty());
    EXPECT_TRUE(trianglesOf(reversed(line)).isEmpty());
}

TEST(PolygonTessellator, aPointExactlyOnTheEdgeOfACandidateEarBlocksIt)
{
    // Corner 1 would be an ear, but for point 3 in the middle of the edge that it would leave.
    const QVector<Vector> points{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {1, 1, 0}, {0, 2, 0}};
    const QVector<int> order{0, 1, 2, 3, 4};
    EXPECT_FALSE(tessellatorOf(points).snip(0, 1, 2, 5, order));
    QVector<Vector> beyond = points;
    beyond[3] = {0.999f, 1.001f, 0.0f};
    EXPECT_TRUE(tessellatorOf(beyond).snip(0, 1, 2, 5, order));
    EXPECT_TRUE(tessellatorOf(points).snip(0, 1, 2, 3, order)) << "only the first three count";

    const QList<int> corners = trianglesOf(points);
    EXPECT_EQ(corners.size(), 9);
    expectCounterClockwise(points, corners);
}

TEST(PolygonTessellator, aPointOnAnyEdgeOrCornerOfAnEarBlocksIt)
{
    const QVector<int> order{0, 1, 2, 3};
    const auto blocks = [&](const Vector &point) {
        return !tessellatorOf({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, point}).snip(0, 1, 2, 4, order);
    };
    for (const Vector &point :
         {Vector(1, 0, 0), Vector(2, 1, 0), Vector(1, 1, 0), Vector(1.5f, 1, 0), Vector(0, 0, 0),
          Vector(2, 0, 0), Vector(2, 2, 0)})
        EXPECT_TRUE(blocks(point)) << point.x << ", " << point.y;
    for (const Vector &point : {Vector(1, -0.01f, 0), Vector(2.01f, 1, 0), Vector(0.99f, 1.01f, 0)})
        EXPECT_FALSE(blocks(point)) << point.x << ", " << point.y;
}

TEST(PolygonTessellator, eachPointIsLoggedWithSixDigits)
{
    const LogCatcher log;
    tessellatorOf({{0, 1, -2}, {0.1f, 1e-7f, 1234567.0f}, {1.0f / 3.0f, 1e20f, -0.5f}});
    EXPECT_EQ(log.texts(),
              QStringList({QStringLiteral("  Adding point: 0, 1, -2\n"),
                           QStringLiteral("  Adding point: 0.1, 1e-07, 1.23457e+06\n"),
                           QStringLiteral("  Adding point: 0.333333, 1e+20, -0.5\n")}));
}

TEST(PolygonTessellator, numbersAreLoggedAsPrintfWritesThem)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 2000; ++i) {
        const float size = std::pow(10.0f, randomBetween(random, -9.0f, 9.0f));
        char line[100];
        std::snprintf(line, sizeof line, "  Adding point: %g, %g, nan\n", double(size),
                      -double(size));
        const LogCatcher log;
        tessellatorOf({{size, -size, std::sqrt(-size)}});
        ASSERT_EQ(log.texts().value(0).toStdString(), line);
    }
    const LogCatcher log;
    tessellatorOf({{-0.0f, std::numeric_limits<float>::infinity(), -1.23456e-38f}});
    EXPECT_EQ(log.texts().value(0).toStdString(), "  Adding point: 0, inf, -1.23456e-38\n");
}

TEST(PolygonTessellator, theAreaIsSignedAndIgnoresHeight)
{
    EXPECT_EQ(tessellatorOf({}).area(), 0.0f);
    EXPECT_EQ(tessellatorOf({{3, 4, 5}}).area(), 0.0f);
    EXPECT_EQ(tessellatorOf({{3, 4, 5}, {1, 2, 3}}).area(), 0.0f);
    EXPECT_EQ(tessellatorOf(LShape).area(), 3.0f);
    EXPECT_EQ(tessellatorOf(reversed(LShape)).area(), -3.0f);
    QVector<Vector> hilly = LShape;
    for (int i = 0; i < hilly.size(); ++i)
        hilly[i].z = float(i * i);
    EXPECT_EQ(tessellatorOf(hilly).area(), 3.0f);
    EXPECT_EQ(trianglesOf(hilly), trianglesOf(LShape));
}

TEST(PolygonTessellator, fewerThanThreePointsAddNothing)
{
    QList<int> corners{7};
    tessellatorOf({}).process(corners);
    tessellatorOf({{0, 0, 0}, {1, 0, 0}}).process(corners);
    EXPECT_EQ(corners, QList<int>{7});
    tessellatorOf({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}).process(corners);
    EXPECT_EQ(corners, QList<int>({7, 2, 0, 1}));
}

TEST(PolygonTessellator, earsComeInTheOrderOfTheWalk)
{
    // The walk looks at the corner after the last place first, and goes on from the last ear.
    EXPECT_EQ(trianglesOf(Square), QList<int>({3, 0, 1, 1, 2, 3}));
    EXPECT_EQ(trianglesOf(reversed(Square)), QList<int>({0, 3, 2, 2, 1, 0}));
}

TEST(PolygonTessellator, aCornerIsNoEarBelowTheSmallestCross)
{
    const QVector<int> order{0, 1, 2};
    const auto corner = [](float height) {
        return tessellatorOf({{0, 0, 0}, {1, 0, 0}, {1, height, 0}});
    };
    EXPECT_FALSE(corner(0.99e-10f).snip(0, 1, 2, 3, order));
    EXPECT_TRUE(corner(1.01e-10f).snip(0, 1, 2, 3, order));
    EXPECT_FALSE(corner(-1.0f).snip(0, 1, 2, 3, order));
}

TEST(PolygonTessellator, aPolygonThatCrossesItselfKeepsTheTrianglesFoundSoFar)
{
    const QVector<Vector> pentagram{
        {0, 1, 0}, {-0.59f, -0.81f, 0}, {0.95f, 0.31f, 0}, {-0.95f, 0.31f, 0}, {0.59f, -0.81f, 0}};
    EXPECT_LT(trianglesOf(pentagram).size(), 9);
    const QVector<Vector> bowTie{{0, 0, 0}, {2, 2, 0}, {2, 0, 0}, {0, 1, 0}};
    EXPECT_LT(trianglesOf(bowTie).size(), 6);
}

TEST(PolygonTessellator, pointsThatAreNotNumbersEnd)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    for (float odd : {nan, infinity, -infinity}) {
        QVector<Vector> some = LShape;
        some[2].x = odd;
        EXPECT_LE(trianglesOf(some).size(), 12);
        EXPECT_LE(trianglesOf(QVector<Vector>(1000, Vector(odd, odd, odd))).size(), 3 * 998);
    }
}

TEST(PolygonTessellator, tenThousandCornersAreQuick)
{
    const int count = 10000;
    const LogCatcher log;
    QElapsedTimer timer;
    timer.start();
    const QVector<Vector> points = regularPolygon(count, 100.0f);
    const QList<int> corners = trianglesOf(points);
    std::cout << count << " corners: " << timer.elapsed() << " ms" << std::endl;
    EXPECT_LT(timer.elapsed(), timeLimit(5000));
    EXPECT_EQ(corners.size(), 3 * (count - 2));
    EXPECT_EQ(log.count(), count);
    expectCounterClockwise(points, corners);
}
