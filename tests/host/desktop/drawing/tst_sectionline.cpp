// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/sectionline.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>

using namespace orvane;

namespace {

const float Pi = 3.14159265f;

class SectionLineTest : public DrawingTest
{
protected:
    void expectSound(const CurveShape &shape) const
    {
        expectOnSurface(shape);
        expectEven(shape);
        expectWellClosed(shape);
    }
};

double lengthOfShape(const CurveShape &shape)
{
    return lengthOf(placesOf(shape.points));
}

Ray towards(const Vector &eye, const Vector &place)
{
    return {eye, place - eye};
}

// Two balls of radius 1, the second one three along x.
SubdivisionLevel *twoBalls()
{
    QScopedPointer<SubdivisionLevel> ball(sphere(30, 60));
    QVector<Vector> positions = ball->Positions();
    QVector<int> corners = ball->Corners();
    const int count = positions.size();
    for (int v = 0; v < count; ++v)
        positions.append(positions[v] + Vector(3, 0, 0));
    for (int vertex : ball->Corners())
        corners.append(vertex + count);
    return meshOf(Topology::Triangles, positions, corners);
}

} // namespace

TEST_F(SectionLineTest, sectionOfASphereIsAnEvenCircle)
{
    drawOn(sphere(60, 120));
    const QVector<CurveShape> curves =
        sectionCurves(MeshCutter(mesh()), {{0, 0, 0.6f}, {0, 0, 1}}, 0.1f, surface());
    ASSERT_EQ(curves.size(), 1);
    EXPECT_TRUE(curves[0].closed);
    expectSound(curves[0]);
    EXPECT_NEAR(lengthOfShape(curves[0]), 2 * double(Pi) * 0.8, 0.02);
    for (const CurvePoint &point : curves[0].points)
        EXPECT_NEAR(point.position.z, 0.6f, 1e-5f);
}

TEST_F(SectionLineTest, straightLineIsTheArcBetweenTheHitsFacingTheEye)
{
    drawOn(sphere(60, 120));
    const MeshCutter cutter(mesh());
    const Vector eye(0, -5, 0);
    const Vector from(-0.5f, -std::sqrt(0.75f), 0);
    const Vector to(0.5f, -std::sqrt(0.75f), 0);
    for (bool turned : {false, true}) {
        const QVector<CurveShape> curves =
            straightSection(cutter, towards(eye, turned ? to : from),
                            towards(eye, turned ? from : to), 0.05f, surface());
        ASSERT_EQ(curves.size(), 1);
        EXPECT_FALSE(curves[0].closed);
        expectSound(curves[0]);
        EXPECT_NEAR(lengthOfShape(curves[0]), double(Pi) / 3, 0.01);
        EXPECT_LT((curves[0].points.first().position - (turned ? to : from)).Length(), 0.01f);
        EXPECT_LT((curves[0].points.last().position - (turned ? from : to)).Length(), 0.01f);
        for (const CurvePoint &point : curves[0].points)
            EXPECT_LT(point.position.y, -0.8f);
    }
}

TEST_F(SectionLineTest, parallelRaysCutTheSameWay)
{
    drawOn(sphere(60, 120));
    const QVector<CurveShape> curves =
        straightSection(MeshCutter(mesh()), {{-0.5f, -5, 0.2f}, {0, 1, 0}},
                        {{0.5f, -5, 0.2f}, {0, 1, 0}}, 0.05f, surface());
    ASSERT_EQ(curves.size(), 1);
    expectSound(curves[0]);
    for (const CurvePoint &point : curves[0].points) {
        EXPECT_NEAR(point.position.z, 0.2f, 1e-5f);
        EXPECT_LT(point.position.y, 0.0f);
    }
}

TEST_F(SectionLineTest, lineThatBeginsBesideTheShapeCutsItAllAround)
{
    drawOn(sphere(60, 120));
    const QVector<CurveShape> curves =
        straightSection(MeshCutter(mesh()), towards({0, -5, 0}, {-2, 0, 0}),
                        towards({0, -5, 0}, {0.1f, 0, 0}), 0.05f, surface());
    ASSERT_EQ(curves.size(), 1);
    EXPECT_TRUE(curves[0].closed);
    EXPECT_NEAR(lengthOfShape(curves[0]), 2 * double(Pi), 0.02);
}

TEST_F(SectionLineTest, lineFromOneShapeToAnotherEndsAtEachSilhouette)
{
    drawOn(twoBalls());
    const QVector<CurveShape> curves =
        straightSection(MeshCutter(mesh()), {{0.2f, -5, 0.1f}, {0, 1, 0}},
                        {{2.7f, -5, 0.1f}, {0, 1, 0}}, 0.05f, surface());
    ASSERT_EQ(curves.size(), 2);
    for (const CurveShape &curve : curves) {
        expectSound(curve);
        for (const CurvePoint &point : curve.points)
            EXPECT_LT(point.position.y, 0.06f);
    }
    EXPECT_NEAR(curves[0].points.first().position.x, 0.2f, 0.01f);
    EXPECT_NEAR(curves[0].points.last().position.x, 1.0f, 0.02f);
    EXPECT_NEAR(curves[1].points.first().position.x, 2.7f, 0.01f);
    EXPECT_NEAR(curves[1].points.last().position.x, 2.0f, 0.02f);
}

TEST_F(SectionLineTest, raysAlongOneLineCutNothing)
{
    drawOn(sphere(20, 30));
    const Ray ray = {{0, -5, 0}, {0, 1, 0}};
    EXPECT_TRUE(straightSection(MeshCutter(mesh()), ray, ray, 0.05f, surface()).isEmpty());
}

TEST_F(SectionLineTest, loopAroundTheNearerTubeOfATorus)
{
    drawOn(torus(3.0f, 0.5f, 90, 40));
    const CurveShape loop =
        loopAround(MeshCutter(mesh()), {{3.5f, 0, 0}, {0, 1, 0}}, 0.1f, surface());
    EXPECT_TRUE(loop.closed);
    expectSound(loop);
    EXPECT_NEAR(lengthOfShape(loop), double(Pi), 0.02);
    for (const CurvePoint &point : loop.points)
        EXPECT_GT(point.position.x, 2.0f);
}

TEST_F(SectionLineTest, sheetHasNoLoop)
{
    drawOn(gridOfQuads(5, 5));
    const MeshCutter cutter(mesh());
    EXPECT_TRUE(loopAround(cutter, {{2, 2, 0}, {1, 0, 0}}, 0.1f, surface()).points.isEmpty());
    EXPECT_EQ(shortestLoopPlane(cutter, hit({2, 2, 0})).normal, Vector());
}

TEST_F(SectionLineTest, shortestLoopGoesStraightAcrossTheLimb)
{
    drawOn(torus(3.0f, 0.5f, 90, 40));
    const MeshCutter cutter(mesh());
    std::mt19937 random(testSeed());
    for (int round = 0; round < 10; ++round) {
        const float angle = randomBetween(random, 0.0f, 2 * Pi);
        const float height = randomBetween(random, -0.3f, 0.3f);
        const SurfacePoint picked =
            hit(Vector(3.5f * std::cos(angle), 3.5f * std::sin(angle), height));
        const Plane plane = shortestLoopPlane(cutter, picked);
        const CurveShape loop = loopAround(cutter, plane, 0.1f, surface());
        EXPECT_TRUE(loop.closed);
        EXPECT_NEAR(lengthOfShape(loop), double(Pi), 0.03);
        const Vector along(-std::sin(angle), std::cos(angle), 0);
        EXPECT_GT(std::abs(Dot(Normalized(plane.normal), along)), 0.98f);
    }
}

TEST_F(SectionLineTest, planeAcrossAStrokeIsSquareToIt)
{
    const Plane plane = planeAcross({1, 0, 0}, {3, 0, 0});
    EXPECT_EQ(plane.point, Vector(2, 0, 0));
    EXPECT_EQ(plane.normal, Vector(1, 0, 0));
}
