// SPDX-License-Identifier: MIT
#include "mesh/polygontessellator.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <iostream>

using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

using Points = QVector<Vector>;

// GEOS without its global state.
class Geos
{
public:
    Geos() : m_context(GEOS_init_r()) {}
    ~Geos() { GEOS_finish_r(m_context); }
    Geos(const Geos &) = delete;
    Geos &operator=(const Geos &) = delete;

    GEOSContextHandle_t context() const { return m_context; }

private:
    GEOSContextHandle_t m_context;
};

class Shape
{
public:
    Shape(const Geos &geos, GEOSGeometry *geometry) : m_geos(geos), m_geometry(geometry) {}
    ~Shape() { GEOSGeom_destroy_r(m_geos.context(), m_geometry); }
    Shape(const Shape &) = delete;
    Shape &operator=(const Shape &) = delete;

    const GEOSGeometry *get() const { return m_geometry; }
    bool isValid() const { return GEOSisValid_r(m_geos.context(), m_geometry) == 1; }
    double area() const
    {
        double result = -1.0;
        GEOSArea_r(m_geos.context(), m_geometry, &result);
        return result;
    }

private:
    const Geos &m_geos;
    GEOSGeometry *m_geometry; // owned
};

GEOSGeometry *polygonOf(const Geos &geos, const Points &points)
{
    GEOSCoordSequence *corners =
        GEOSCoordSeq_create_r(geos.context(), unsigned(points.size()) + 1, 2);
    for (int i = 0; i <= points.size(); ++i) {
        const Vector &p = points[i % points.size()];
        GEOSCoordSeq_setXY_r(geos.context(), corners, unsigned(i), double(p.x), double(p.y));
    }
    GEOSGeometry *ring = GEOSGeom_createLinearRing_r(geos.context(), corners);
    return GEOSGeom_createPolygon_r(geos.context(), ring, nullptr, 0);
}

GEOSGeometry *unionOf(const Geos &geos, const Points &points, const QList<int> &corners)
{
    std::vector<GEOSGeometry *> triangles;
    for (int i = 0; i < corners.size(); i += 3) {
        triangles.push_back(
            polygonOf(geos, {points[corners[i]], points[corners[i + 1]], points[corners[i + 2]]}));
    }
    const Shape all(geos,
                    GEOSGeom_createCollection_r(geos.context(), GEOS_MULTIPOLYGON, triangles.data(),
                                                unsigned(triangles.size())));
    return GEOSUnaryUnion_r(geos.context(), all.get());
}

double doubledArea(const Vector &a, const Vector &b, const Vector &c)
{
    return (double(b.x) - a.x) * (double(c.y) - a.y) - (double(b.y) - a.y) * (double(c.x) - a.x);
}

// Triangles that all run counter-clockwise, have the area of the polygon together, and cover it:
// then none overlaps another.
void expectCover(const Geos &geos, const Points &points)
{
    PolygonTessellator tessellator;
    for (const Vector &point : points)
        tessellator.addPoint(point);
    QList<int> corners;
    tessellator.process(corners);
    ASSERT_EQ(corners.size(), 3 * (points.size() - 2));

    double sum = 0.0;
    for (int i = 0; i < corners.size(); i += 3) {
        const double twice =
            doubledArea(points[corners[i]], points[corners[i + 1]], points[corners[i + 2]]);
        ASSERT_GT(twice, 0.0) << "triangle " << i / 3;
        sum += 0.5 * twice;
    }
    const Shape polygon(geos, polygonOf(geos, points));
    const double area = polygon.area();
    EXPECT_NEAR(sum, area, 1e-9 * area);
    EXPECT_NEAR(std::fabs(double(tessellator.area())), area, 1e-3 * area);
    const Shape cover(geos, unionOf(geos, points, corners));
    EXPECT_NEAR(cover.area(), area, 1e-9 * area);
    const Shape difference(geos, GEOSSymDifference_r(geos.context(), cover.get(), polygon.get()));
    EXPECT_NEAR(difference.area(), 0.0, 1e-9 * area);
}

// What must not matter: direction, first corner, scale.
void expectCoverOfAll(const Geos &geos, Points points, std::mt19937 &random)
{
    expectCover(geos, points);
    std::reverse(points.begin(), points.end());
    expectCover(geos, points);
    std::rotate(points.begin(), points.begin() + int(random() % unsigned(points.size())),
                points.end());
    expectCover(geos, points);
    for (Vector &point : points)
        point *= 1000.0f;
    expectCover(geos, points);
}

Vector onCircle(double angle, double radius)
{
    return {float(radius * std::cos(angle)), float(radius * std::sin(angle)), 0.0f};
}

Points starShaped(std::mt19937 &random)
{
    const int count = 3 + int(random() % 60u);
    Points points;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * Pi * (i + double(randomBetween(random, 0.1f, 0.9f))) / count;
        points.append(onCircle(angle, double(randomBetween(random, 0.2f, 2.0f))));
    }
    return points;
}

// A band that winds outwards: out along one side, back along the other.
Points spiral(std::mt19937 &random)
{
    const int count = 10 + int(random() % 50u);
    const double width = double(randomBetween(random, 0.05f, 0.4f));
    Points outer;
    Points inner;
    for (int i = 0; i < count; ++i) {
        const double angle = 0.35 * i + double(randomBetween(random, -0.1f, 0.1f));
        const double radius = 1.0 + angle / (2.0 * Pi);
        outer.append(onCircle(angle, radius + 0.5 * width));
        inner.prepend(onCircle(angle, radius - 0.5 * width));
    }
    return outer + inner;
}

Points comb(std::mt19937 &random)
{
    const int teeth = 2 + int(random() % 20u);
    Points points{{float(teeth) + 1.0f, -2.0f, 0.0f}};
    for (int i = teeth; i >= 0; --i) {
        const float x = float(i) + randomBetween(random, 0.0f, 0.2f);
        points.append(Vector(x + 0.6f, randomBetween(random, 2.0f, 3.0f), 0.0f));
        points.append(Vector(x, randomBetween(random, -1.0f, 0.0f), 0.0f));
    }
    points.append(Vector(-1.0f, -2.0f, 0.0f));
    return points;
}

using Maker = Points (*)(std::mt19937 &);

void coverMany(Maker make, int runs)
{
    const Geos geos;
    std::mt19937 random(testSeed());
    int simple = 0;
    for (int run = 0; run < runs && !testing::Test::HasFatalFailure(); ++run) {
        SCOPED_TRACE("run " + std::to_string(run));
        const Points points = make(random);
        if (!Shape(geos, polygonOf(geos, points)).isValid())
            continue;
        ++simple;
        expectCoverOfAll(geos, points, random);
    }
    std::cout << simple << " simple polygons of " << runs << std::endl;
    EXPECT_GE(simple, runs * 9 / 10);
}

} // namespace

TEST(TessellationCover, starShapedPolygonsAreCoveredOnce)
{
    coverMany(starShaped, 300);
}

TEST(TessellationCover, spiralsAreCoveredOnce)
{
    coverMany(spiral, 150);
}

TEST(TessellationCover, combsAreCoveredOnce)
{
    coverMany(comb, 150);
}
