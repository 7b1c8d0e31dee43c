// SPDX-License-Identifier: MIT
#include "cli/surface.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <QScopedPointer>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using orvane::Vector;

namespace {

using MeshPointer = QScopedPointer<orvane::SubdivisionLevel>;

float areaOf(const Surface &surface)
{
    float area = 0.0f;
    for (const SurfaceTriangle &triangle : surface.triangles) {
        const Vector a = surface.positions[triangle.vertex[0]];
        const Vector b = surface.positions[triangle.vertex[1]];
        const Vector c = surface.positions[triangle.vertex[2]];
        area += ((b - a) & (c - a)).Length() / 2.0f;
    }
    return area;
}

class PlacedSurface : public SceneCleaner
{};

} // namespace

TEST(Surface, fakeTrianglesAreOnePolygon)
{
    const MeshPointer mesh(polygonOfFakes(7));
    const Surface surface = surfaceOf(*mesh, SurfaceLook::Facets);
    ASSERT_EQ(surface.polygons.Count(), 1);
    EXPECT_EQ(surface.polygons.CornerCount(0), 7);
    EXPECT_EQ(surface.triangles.size(), 5);
}

TEST(Surface, aConcaveQuadIsNotFoldedOver)
{
    // An arrow head; each corner in turn is the first.
    const QVector<Vector> arrow{{0, 2, 0}, {-1, 0, 0}, {0, 0.5f, 0}, {1, 0, 0}};
    for (int first = 0; first < 4; ++first) {
        QVector<int> corners;
        for (int i = 0; i < 4; ++i)
            corners.append((first + i) % 4);
        const MeshPointer mesh(meshOf(orvane::Topology::Quads, arrow, corners));
        EXPECT_FLOAT_EQ(areaOf(surfaceOf(*mesh, SurfaceLook::Facets)), 1.5f) << first;
    }
}

TEST(Surface, facetsHaveOneNormal)
{
    const MeshPointer mesh(sphere(6, 8));
    const Surface surface = surfaceOf(*mesh, SurfaceLook::Facets);
    ASSERT_FALSE(surface.triangles.isEmpty());
    for (const SurfaceTriangle &triangle : surface.triangles) {
        EXPECT_EQ(triangle.normal[0], triangle.normal[1]);
        EXPECT_EQ(triangle.normal[0], triangle.normal[2]);
    }
}

TEST(Surface, roundShapesAreSmooth)
{
    const MeshPointer mesh(sphere(16, 24));
    const Surface surface = surfaceOf(*mesh, SurfaceLook::Smooth);
    ASSERT_FALSE(surface.triangles.isEmpty());
    for (const SurfaceTriangle &triangle : surface.triangles) {
        for (int i = 0; i < 3; ++i)
            EXPECT_GT(Dot(triangle.normal[i], surface.positions[triangle.vertex[i]]), 0.98f);
    }
}

TEST(Surface, creasesStaySharp)
{
    const MeshPointer mesh(cube());
    const Surface surface = surfaceOf(*mesh, SurfaceLook::Smooth);
    ASSERT_EQ(surface.triangles.size(), 12);
    for (const SurfaceTriangle &triangle : surface.triangles) {
        const Vector n = triangle.normal[0];
        EXPECT_FLOAT_EQ(std::abs(n.x) + std::abs(n.y) + std::abs(n.z), 1.0f);
        EXPECT_EQ(n, triangle.normal[1]);
        EXPECT_EQ(n, triangle.normal[2]);
    }
}

TEST(Surface, polygonsThatCannotBeDrawnAreLeftOut)
{
    for (float bad : {std::numeric_limits<float>::quiet_NaN(),
                      std::numeric_limits<float>::infinity(), -1e20f}) {
        const MeshPointer mesh(gridOfQuads(2, 2));
        mesh->SetVertexPosition(0, {0.0f, bad, 0.0f});
        const Surface surface = surfaceOf(*mesh, SurfaceLook::Smooth);
        EXPECT_EQ(surface.polygons.Count(), 3);
        EXPECT_FLOAT_EQ(areaOf(surface), 3.0f);
        EXPECT_TRUE(surface.normals[8].IsFinite());
    }
}

TEST(Surface, facesOfNoVerticesAreLeftOut)
{
    orvane::SubdivisionLevel mesh;
    mesh.SetFaceCount(2);
    const Surface surface = surfaceOf(mesh, SurfaceLook::Smooth);
    EXPECT_EQ(surface.polygons.Count(), 0);
    EXPECT_TRUE(surface.triangles.isEmpty());
}

TEST_F(PlacedSurface, isInTheWorld)
{
    orvane::SubdivisionLevel *mesh = singleQuad();
    addToScene(mesh, QStringLiteral("Quad"),
               orvane::Matrix::Scaling({2, 2, 2}) * orvane::Matrix::Translation({10, 0, 0}));
    const Surface surface = surfaceOf(*mesh, SurfaceLook::Facets);
    EXPECT_FLOAT_EQ(areaOf(surface), 4.0f);
    EXPECT_EQ(surface.positions[0], Vector(10, 0, 0));
}
