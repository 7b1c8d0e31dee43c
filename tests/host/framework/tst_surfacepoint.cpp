// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/curvepoint.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacepoint.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <QScopedPointer>

#include <climits>
#include <cmath>
#include <type_traits>

using orvane::CurvePoint;
using orvane::Geometry;
using orvane::Mesh;
using orvane::SurfacePoint;
using orvane::Topology;
using orvane::Vector;

static_assert(std::is_trivially_copyable<CurvePoint>::value, "streams write curve points as bytes");

namespace {

const Vector P0(0, 0, 0);
const Vector P1(4, 0, 1);
const Vector P2(5, 3, 2);
const Vector P3(0, 2, 5);

orvane::Scene *scene()
{
    return orvane::Kernel()->Scene();
}

void expectNear(const Vector &actual, const Vector &expected)
{
    EXPECT_LT((actual - expected).Length(), 1e-5f)
        << actual.x << ", " << actual.y << ", " << actual.z;
}

} // namespace

class OnASurface : public SceneCleaner
{
protected:
    const Mesh &meshInScene(orvane::SubdivisionLevel *mesh)
    {
        m_geometry = addToScene(mesh);
        return *mesh;
    }
    const Mesh &triangle()
    {
        return meshInScene(meshOf(Topology::Triangles, {P0, P1, P2}, {0, 1, 2}));
    }
    const Mesh &quad()
    {
        return meshInScene(meshOf(Topology::Quads, {P0, P1, P2, P3}, {0, 1, 2, 3}));
    }

    Geometry *m_geometry = nullptr;
};

TEST_F(OnASurface, aDefaultPointIsBoundToNone)
{
    const SurfacePoint point;
    EXPECT_EQ(point.Mesh(), nullptr);
    EXPECT_FALSE(point.IsOnValidFace());
    EXPECT_EQ(point.WorldPosition(), Vector());
    EXPECT_EQ(point.WorldNormal(), Vector());
}

TEST_F(OnASurface, aPointOfATriangleLiesAtItsLocalPosition)
{
    const Mesh &mesh = triangle();
    expectNear(SurfacePoint(mesh, 0, 0, 0).WorldPosition(), P0);
    expectNear(SurfacePoint(mesh, 0, 1, 0).WorldPosition(), P1);
    expectNear(SurfacePoint(mesh, 0, 0, 1).WorldPosition(), P2);
    const SurfacePoint point(mesh, 0, 0.25f, 0.5f);
    expectNear(point.WorldPosition(), P0 + (P1 - P0) * 0.25f + (P2 - P0) * 0.5f);
    EXPECT_EQ(point.Mesh(), &mesh);
    EXPECT_EQ(point.FaceIndex(), 0);
    EXPECT_EQ(point.U(), 0.25f);
    EXPECT_EQ(point.V(), 0.5f);
    EXPECT_TRUE(point.IsOnValidFace());
}

TEST_F(OnASurface, aPointOfAQuadLiesOnOneOfItsHalves)
{
    const Mesh &mesh = quad();
    expectNear(SurfacePoint(mesh, 0, 0, 0).WorldPosition(), P0);
    expectNear(SurfacePoint(mesh, 0, 1, 0).WorldPosition(), P1);
    expectNear(SurfacePoint(mesh, 0, 1, 1).WorldPosition(), P2);
    expectNear(SurfacePoint(mesh, 0, 0, 1).WorldPosition(), P3);
    expectNear(SurfacePoint(mesh, 0, 0.75f, 0.25f).WorldPosition(),
               P0 + (P1 - P0) * 0.75f + (P2 - P1) * 0.25f);
    expectNear(SurfacePoint(mesh, 0, 0.25f, 0.75f).WorldPosition(),
               P0 + (P3 - P0) * 0.75f + (P2 - P3) * 0.25f);
    expectNear(SurfacePoint(mesh, 0, 0.5f, 0.5f).WorldPosition(), (P0 + P2) * 0.5f);
}

TEST_F(OnASurface, aPointOfABentQuadIsInThePlaneOfItsHalf)
{
    const Mesh &mesh = quad();
    std::mt19937 random(testSeed());
    const Vector lower = (P1 - P0) & (P2 - P0);
    const Vector upper = (P2 - P0) & (P3 - P0);
    for (int i = 0; i < 200; ++i) {
        const float u = randomBetween(random, 0, 1);
        const float v = randomBetween(random, 0, 1);
        const Vector p = SurfacePoint(mesh, 0, u, v).WorldPosition();
        EXPECT_NEAR(orvane::Dot(u >= v ? lower : upper, p), 0.0f, 1e-4f) << u << ", " << v;
    }
}

TEST_F(OnASurface, aPointLiesInTheWorldWhereTheGeometryStands)
{
    orvane::SubdivisionLevel *mesh = singleTriangle();
    addToScene(mesh, QStringLiteral("moved"),
               orvane::Matrix::Scaling({2, 2, 2}) * orvane::Matrix::Translation({10, 0, 0}));
    expectNear(SurfacePoint(*mesh, 0, 0.5f, 0.5f).WorldPosition(), {11, 1, 0});
}

TEST_F(OnASurface, aPointIsUnboundWhileItsMeshIsOutOfTheScene)
{
    const Mesh &mesh = triangle();
    const SurfacePoint point(mesh, 0, 0.25f, 0.25f);
    const Vector before = point.WorldPosition();
    scene()->RemoveGeometry(m_geometry);
    EXPECT_EQ(point.Mesh(), nullptr);
    EXPECT_FALSE(point.IsOnValidFace());
    EXPECT_EQ(point.WorldNormal(), Vector());
    EXPECT_EQ(point.WorldPosition(), before);
    scene()->AddGeometry(m_geometry);
    EXPECT_EQ(point.Mesh(), &mesh);
    EXPECT_TRUE(point.IsOnValidFace());
}

TEST_F(OnASurface, aPointBindsToAMeshThatTakesTheNumberOfItsOwn)
{
    const Mesh &mesh = triangle();
    const SurfacePoint point(mesh, 0, 0.25f, 0.25f);
    const int id = mesh.ID();
    scene()->RemoveGeometry(m_geometry);
    delete m_geometry;
    EXPECT_EQ(point.Mesh(), nullptr);
    orvane::SubdivisionLevel *again = singleTriangle();
    addToScene(again);
    EXPECT_EQ(point.Mesh(), nullptr);
    again->SetID(id);
    EXPECT_EQ(point.Mesh(), again);
}

TEST_F(OnASurface, aPointIsUnboundWhenItsNumberIsNoMeshs)
{
    const Mesh &mesh = triangle();
    const SurfacePoint point(mesh, 0, 0.25f, 0.25f);
    const int id = mesh.ID();
    scene()->Clear();
    addToScene(singleQuad())->SetID(id);
    EXPECT_EQ(point.Mesh(), nullptr);
}

TEST_F(OnASurface, aPointOfAMeshThatNeverWasInTheSceneIsUnbound)
{
    const QScopedPointer<orvane::SubdivisionLevel> mesh(singleTriangle());
    const SurfacePoint point(*mesh, 0, 0.5f, 0.5f);
    EXPECT_EQ(point.Mesh(), nullptr);
    EXPECT_EQ(point.WorldPosition(), Vector(0.5f, 0.5f, 0));
}

TEST_F(OnASurface, aFaceOutOfRangeIsKeptButNotValid)
{
    const Mesh &mesh = triangle();
    for (const int face : {-1, 1, INT_MAX, INT_MIN}) {
        const SurfacePoint point(mesh, face, 0.25f, 0.25f);
        EXPECT_EQ(point.FaceIndex(), face);
        EXPECT_EQ(point.Mesh(), &mesh);
        EXPECT_FALSE(point.IsOnValidFace());
        EXPECT_EQ(point.WorldPosition(), Vector());
        EXPECT_EQ(point.WorldNormal(), Vector());
    }
}

TEST_F(OnASurface, aFaceThatIsCutOffIsNoLongerValid)
{
    orvane::SubdivisionLevel *mesh = gridOfTriangles(1, 1);
    addToScene(mesh);
    const SurfacePoint point(*mesh, 1, 0.25f, 0.25f);
    EXPECT_TRUE(point.IsOnValidFace());
    mesh->SetFaceCount(1);
    EXPECT_FALSE(point.IsOnValidFace());
    EXPECT_EQ(point.WorldNormal(), Vector());
}

TEST_F(OnASurface, aNormalBlendsThoseOfTheCorners)
{
    orvane::SubdivisionLevel *mesh = singleTriangle();
    addToScene(mesh);
    mesh->SetVertexNormal(0, {1, 0, 0});
    mesh->SetVertexNormal(1, {0, 1, 0});
    mesh->SetVertexNormal(2, {0, 0, 1});
    expectNear(SurfacePoint(*mesh, 0, 0, 0).WorldNormal(), {1, 0, 0});
    expectNear(SurfacePoint(*mesh, 0, 1, 0).WorldNormal(), {0, 1, 0});
    const float half = std::sqrt(0.5f);
    expectNear(SurfacePoint(*mesh, 0, 0.5f, 0.5f).WorldNormal(), {0, half, half});
}

TEST_F(OnASurface, aNormalIsTheFacesWhereTheCornersHaveNone)
{
    orvane::SubdivisionLevel *mesh = singleQuad();
    addToScene(mesh);
    for (int v = 0; v < 4; ++v)
        mesh->SetVertexNormal(v, {});
    expectNear(SurfacePoint(*mesh, 0, 0.3f, 0.6f).WorldNormal(), {0, 0, 1});
    mesh->SetVertexNormal(0, {1, 0, 0});
    mesh->SetVertexNormal(2, {-1, 0, 0});
    expectNear(SurfacePoint(*mesh, 0, 0.5f, 0.5f).WorldNormal(), {0, 0, 1});
}

TEST_F(OnASurface, aNormalOfASphereLeadsAwayFromItsCentre)
{
    std::mt19937 random(testSeed());
    orvane::SubdivisionLevel *mesh = sphere(24, 48);
    addToScene(mesh, QStringLiteral("egg"), orvane::Matrix::Scaling({3, 1, 0.5f}));
    for (int i = 0; i < 500; ++i) {
        const int face = int(random() % unsigned(mesh->FaceCount()));
        const SurfacePoint point(*mesh, face, 0.3f, 0.3f);
        const Vector p = point.WorldPosition();
        // The gradient of x²/9 + y² + 4z².
        const Vector expected = orvane::Normalized({p.x / 9, p.y, p.z * 4});
        EXPECT_GT(orvane::Dot(point.WorldNormal(), expected), 0.995f) << "face " << face;
        EXPECT_NEAR(point.WorldNormal().Length(), 1.0f, 1e-6f) << "face " << face;
    }
}

TEST_F(OnASurface, aShiftMovesThePositionAlone)
{
    SurfacePoint point(triangle(), 0, 0.25f, 0.5f);
    const Vector before = point.WorldPosition();
    point.Shift({1, 2, 3});
    EXPECT_EQ(point.WorldPosition(), before + Vector(1, 2, 3));
    EXPECT_EQ(point.FaceIndex(), 0);
    EXPECT_EQ(point.U(), 0.25f);
    EXPECT_EQ(point.V(), 0.5f);
}

TEST_F(OnASurface, aCurvePointTakesThePositionOfItsSurfacePoint)
{
    const SurfacePoint surface(triangle(), 0, 0.25f, 0.5f);
    EXPECT_EQ(CurvePoint(surface).position, surface.WorldPosition());
    EXPECT_EQ(CurvePoint(surface).surfacePoint.FaceIndex(), 0);
    EXPECT_EQ(CurvePoint(Vector(1, 2, 3)).surfacePoint.Mesh(), nullptr);
    EXPECT_EQ(CurvePoint().position, Vector());
}
