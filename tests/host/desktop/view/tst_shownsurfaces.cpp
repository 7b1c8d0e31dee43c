// SPDX-License-Identifier: MIT
#include "host/desktop/view/shownsurfaces.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using namespace orvane;

namespace {

class ShownSurfaces : public SceneCleaner
{
protected:
    //! The height of the surface above (0.2, 0.2), or -1 where the ray misses.
    float heightOn(const Geometry *geometry)
    {
        const SurfacePoint point =
            locatorOf(geometry)->Pick(Vector(0.2f, 0.2f, 10.0f), Vector(0, 0, -1));
        return point.Mesh() ? point.WorldPosition().z : -1.0f;
    }
};

} // namespace

TEST_F(ShownSurfaces, aSurfaceIsPreparedOnceWhileItStaysTheSame)
{
    const Geometry *geometry = addToScene(singleQuad());
    const SurfaceLocator *locator = locatorOf(geometry);
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
    EXPECT_EQ(locatorOf(geometry), locator);
    EXPECT_EQ(shownSurfaces(), SurfaceList{locator});
}

TEST_F(ShownSurfaces, aChangedShapeIsFoundWhereItIsNow)
{
    SubdivisionLevel *mesh = singleTriangle();
    const Geometry *geometry = addToScene(mesh);
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
    for (int v = 0; v < 3; ++v)
        mesh->SetVertexPosition(v, mesh->VertexPosition(v) + Vector(0, 0, 2));
    EXPECT_FLOAT_EQ(heightOn(geometry), 2.0f);
    mesh->SetTriangleIndex(0, 2, 0);
    EXPECT_FLOAT_EQ(heightOn(geometry), -1.0f) << "a face without area is not hit";
}

TEST_F(ShownSurfaces, aMovedGeometryIsFoundWhereItIsNow)
{
    Geometry *geometry = addToScene(singleQuad());
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
    geometry->Placement()->SetWorldMatrix(Matrix::Translation(Vector(0, 0, 3)));
    EXPECT_FLOAT_EQ(heightOn(geometry), 3.0f);
}

TEST_F(ShownSurfaces, anotherLevelIsAnotherSurface)
{
    Geometry *geometry = addToScene(singleQuad());
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
    geometry->AddLevel(meshOf(Topology::Triangles, {{0, 0, 5}, {1, 0, 5}, {0, 1, 5}}, {0, 1, 2}));
    EXPECT_FLOAT_EQ(heightOn(geometry), 5.0f);
    geometry->SetCurrentLevel(0);
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
}

TEST_F(ShownSurfaces, theListHasWhatIsShownInTheOrderOfTheScene)
{
    Geometry *first = addToScene(singleQuad());
    Geometry *hidden = addToScene(cube());
    hidden->SetHidden(true);
    Kernel()->Scene()->AddGeometry(new Geometry); // without a level; owned by the scene
    Geometry *last = addToScene(tetrahedron());
    const QVector<Geometry *> shown = {first, last};
    EXPECT_EQ(shownGeometries(), shown);
    const SurfaceList wanted = {locatorOf(first), locatorOf(last)};
    EXPECT_EQ(shownSurfaces(), wanted);
    EXPECT_NE(locatorOf(hidden), nullptr);
}

TEST_F(ShownSurfaces, whatIsNotInTheSceneHasNoSurface)
{
    EXPECT_EQ(locatorOf(nullptr), nullptr);
    Geometry *geometry = addToScene(singleQuad());
    EXPECT_NE(locatorOf(geometry), nullptr);
    Kernel()->Scene()->RemoveGeometry(geometry);
    EXPECT_EQ(locatorOf(geometry), nullptr);
    EXPECT_TRUE(shownSurfaces().isEmpty());
    Kernel()->Scene()->AddGeometry(geometry);
    EXPECT_FLOAT_EQ(heightOn(geometry), 0.0f);
}
