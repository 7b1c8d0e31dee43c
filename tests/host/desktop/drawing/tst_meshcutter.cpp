// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/meshcutter.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;

using CutterTest = DrawingTest;

CurveShape shapeOf(const SectionLine &line)
{
    CurveShape shape;
    for (const SurfacePoint &point : line.points)
        shape.points.append(CurvePoint(point));
    return shape;
}

void expectSound(const QVector<SectionLine> &lines, const Plane &plane, double scale)
{
    for (const SectionLine &line : lines) {
        ASSERT_GE(line.points.size(), 2);
        const Vector first = line.points.first().WorldPosition();
        EXPECT_EQ(line.closed, first == line.points.last().WorldPosition());
        for (const SurfacePoint &point : line.points)
            EXPECT_NEAR(heightOf(point.WorldPosition(), plane), 0.0, 2e-6 * scale);
    }
}

} // namespace

TEST_F(CutterTest, sphereIsCutInACircle)
{
    drawOn(sphere(60, 120));
    const MeshCutter cutter(mesh());
    for (float height : {-0.93f, -0.4f, 0.01f, 0.77f}) {
        for (const Vector &normal : {Vector(0, 0, 1), Vector(1, 0, 0), Vector(0.6f, 0, 0.8f)}) {
            const QVector<SectionLine> lines = cutter.Cut({normal * height, normal});
            ASSERT_EQ(lines.size(), 1);
            EXPECT_TRUE(lines[0].closed);
            const double radius = std::sqrt(1.0 - double(height) * double(height));
            EXPECT_NEAR(lengthOf(placesOf(lines[0])), 2 * double(Pi) * radius, 0.02);
            for (const Vector &place : placesOf(lines[0])) {
                const Vector offset = place - normal * height;
                EXPECT_NEAR(double(offset.Length()), radius, 0.005);
            }
            expectOnSurface(shapeOf(lines[0]));
        }
    }
}

TEST_F(CutterTest, planeBesideTheMeshCutsNothing)
{
    drawOn(sphere(9, 12));
    const MeshCutter cutter(mesh());
    EXPECT_TRUE(cutter.Cut({{0, 0, 1.5f}, {0, 0, 1}}).isEmpty());
    EXPECT_TRUE(cutter.Cut({{0, 0, 0}, {0, 0, 0}}).isEmpty());
    EXPECT_TRUE(cutter.Cut({{NAN, 0, 0}, {0, 0, 1}}).isEmpty());
}

TEST_F(CutterTest, sheetGivesOneOpenLineFromBorderToBorder)
{
    drawOn(gridOfQuads(6, 4));
    const QVector<SectionLine> lines = MeshCutter(mesh()).Cut({{0, 1.3f, 0}, {0, 1, 0}});
    ASSERT_EQ(lines.size(), 1);
    EXPECT_FALSE(lines[0].closed);
    EXPECT_NEAR(lengthOf(placesOf(lines[0])), 6.0, 1e-5);
    EXPECT_EQ(lines[0].points.size(), 13); // 7 edges and 6 diagonals
    expectOnSurface(shapeOf(lines[0]));
}

TEST_F(CutterTest, planeThroughARowOfVerticesGivesOneLine)
{
    drawOn(gridOfQuads(6, 4));
    for (const Vector &normal : {Vector(0, 1, 0), Vector(0, -1, 0)}) {
        const QVector<SectionLine> lines = MeshCutter(mesh()).Cut({{0, 2, 0}, normal});
        ASSERT_EQ(lines.size(), 1);
        EXPECT_NEAR(lengthOf(placesOf(lines[0])), 6.0, 1e-6);
        EXPECT_EQ(lines[0].points.size(), 7);
    }
}

TEST_F(CutterTest, planeThroughCornersOfTheCubeClosesOnce)
{
    drawOn(cube(2.0f));
    const MeshCutter cutter(mesh());
    // Through two opposite edges: a rectangle.
    for (const Vector &normal : {Vector(1, 1, 0), Vector(-1, -1, 0), Vector(1, 0, -1)}) {
        const QVector<SectionLine> lines = cutter.Cut({{}, normal});
        ASSERT_EQ(lines.size(), 1);
        EXPECT_TRUE(lines[0].closed);
        EXPECT_NEAR(lengthOf(placesOf(lines[0])), 4 + 4 * std::sqrt(2.0), 1e-5);
    }
    // Through three corners that are neighbours of one: a triangle of diagonals.
    const QVector<SectionLine> triangle = cutter.Cut({{1, 1, -1}, {1, 1, 1}});
    ASSERT_EQ(triangle.size(), 1);
    EXPECT_NEAR(lengthOf(placesOf(triangle[0])), 3 * std::sqrt(8.0), 1e-5);
    // Through one corner only.
    EXPECT_TRUE(cutter.Cut({{1, 1, 1}, {1, 1, 1}}).size() <= 1);
    EXPECT_NEAR(lengthOfAll(cutter.Cut({{1, 1, 1}, {1, 1, 1}})), 0.0, 1e-6);
}

TEST_F(CutterTest, faceInThePlaneIsCutAlongItsBorderFromOneSide)
{
    drawOn(cube(2.0f));
    const MeshCutter cutter(mesh());
    const QVector<SectionLine> lines = cutter.Cut({{0, 0, 1}, {0, 0, 1}});
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].closed);
    EXPECT_NEAR(lengthOf(placesOf(lines[0])), 8.0, 1e-5);
    EXPECT_TRUE(cutter.Cut({{0, 0, 1}, {0, 0, -1}}).isEmpty());
}

TEST_F(CutterTest, closedMeshHasClosedLinesOnlyAndAgreesWithEveryFace)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 60; ++round) {
        drawOn(round % 2 ? torus(2.0f, 0.7f, 20, 9) : sphere(11, 17), randomPlacement(random));
        const MeshCutter cutter(mesh());
        Vector center;
        for (int v = 0; v < mesh().VertexCount(); ++v)
            center += mesh().WorldVertexPosition(v) / float(mesh().VertexCount());
        // Every third plane goes through three vertices: some lie on it exactly.
        const auto vertex = [&]() {
            return mesh().WorldVertexPosition(int(random() % unsigned(mesh().VertexCount())));
        };
        const Vector a = vertex();
        const Plane plane = round % 3 == 0
                                ? Plane{a, (vertex() - a) & (vertex() - a)}
                                : Plane{center + randomVector(random, 0.3f), randomVector(random)};
        const QVector<SectionLine> lines = cutter.Cut(plane);
        expectSound(lines, plane, double(diagonal() * 20 * plane.normal.Length()));
        for (const SectionLine &line : lines) {
            EXPECT_TRUE(line.closed);
            expectOnSurface(shapeOf(line));
        }
        const double expected = lengthByEveryFace(mesh(), plane);
        EXPECT_NEAR(lengthOfAll(lines), expected, 1e-4 * double(diagonal()));
        Kernel()->Scene()->Clear();
    }
}

TEST_F(CutterTest, meshesWithBordersAndTangledOnesAgreeWithEveryFace)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 60; ++round) {
        SubdivisionLevel *shape = round % 3 == 0   ? bumpySheet(8, 7, random)
                                  : round % 3 == 1 ? randomMesh(Topology::Triangles, 30, 60, random)
                                                   : randomMesh(Topology::Quads, 30, 40, random);
        drawOn(shape);
        const Plane plane = {mesh().WorldVertexPosition(int(random() % 30u)), randomVector(random)};
        const QVector<SectionLine> lines = MeshCutter(mesh()).Cut(plane);
        EXPECT_NEAR(lengthOfAll(lines), lengthByEveryFace(mesh(), plane), 1e-3);
        Kernel()->Scene()->Clear();
    }
}

TEST_F(CutterTest, turnedPlaneCutsTheSameLines)
{
    std::mt19937 random(testSeed());
    drawOn(torus(2.0f, 0.7f, 20, 9));
    const MeshCutter cutter(mesh());
    for (int round = 0; round < 30; ++round) {
        const Plane plane = {randomVector(random), randomVector(random)};
        const QVector<SectionLine> lines = cutter.Cut(plane);
        const QVector<SectionLine> turned = cutter.Cut({plane.point, -plane.normal});
        ASSERT_EQ(lines.size(), turned.size());
        for (int i = 0; i < lines.size(); ++i)
            EXPECT_EQ(placesOf(lines[i]), placesOf(turned[i]));
    }
}

TEST_F(CutterTest, theSameCutComesOutInTheSameOrder)
{
    drawOn(torus(2.0f, 0.7f, 20, 9));
    const Plane plane = {{0.1f, 0, 0}, {1, 0.2f, 0.1f}};
    const QVector<SectionLine> once = MeshCutter(mesh()).Cut(plane);
    const QVector<SectionLine> again = MeshCutter(mesh()).Cut(plane);
    ASSERT_EQ(once.size(), 2);
    ASSERT_EQ(again.size(), 2);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(placesOf(once[i]), placesOf(again[i]));
}
