// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>

using orvane::MeshChecker;
using orvane::UV;

namespace {

int faultsOf(const MeshPointer &mesh)
{
    return MeshChecker().Validate(mesh.get());
}

// A square of which u goes from low to high, and v too or from 0 to 1.
MeshPointer squareOverTiles(float low, float high, bool inV = false)
{
    MeshPointer mesh(singleQuad());
    mesh->SetUVCount(4);
    for (int i = 0; i < 4; ++i) {
        const float along = i == 1 || i == 2 ? high : low;
        const float across = i >= 2 ? 1.0f : 0.0f;
        mesh->SetTextureCoordinate(i, inV ? UV{across, along} : UV{along, across});
        mesh->SetUVIndex(0, i, i);
    }
    return mesh;
}

// Two by two squares; the first faces have texture coordinates.
MeshPointer gridWithUVs(int facesWithUVs)
{
    MeshPointer mesh(gridOfQuads(2, 2));
    mesh->SetUVCount(1);
    for (int face = 0; face < facesWithUVs; ++face) {
        for (int corner = 0; corner < 4; ++corner)
            mesh->SetUVIndex(face, corner, 0);
    }
    return mesh;
}

} // namespace

TEST(UVCrossing, aFaceWithinOneTileIsNone)
{
    EXPECT_EQ(faultsOf(squareOverTiles(0.0f, 1.0f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(0.2f, 0.8f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(3.0f, 4.0f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(-1.0f, 0.0f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(1.0f, 1.0f)), 0);
}

TEST(UVCrossing, aFaceBeyondItsTileIsOneInEitherDirection)
{
    EXPECT_EQ(faultsOf(squareOverTiles(0.5f, 1.5f)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(-0.25f, 0.25f)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(0.5f, 1.5f, true)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(1.5f, 0.5f, true)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(0.0f, 2.0f)), MeshChecker::UVCrossing);
}

TEST(UVCrossing, aMillionthBeyondIsForgiven)
{
    EXPECT_EQ(faultsOf(squareOverTiles(0.0f, 1.0f + 9e-7f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(0.0f, 1.0f + 2e-6f)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(-9e-7f, 1.0f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(-2e-6f, 1.0f)), MeshChecker::UVCrossing);
    EXPECT_EQ(faultsOf(squareOverTiles(1.0f - 9e-7f, 2.0f)), 0);
}

TEST(UVCrossing, aPolygonIsSeenAsAWhole)
{
    MeshPointer mesh = polygonMesh({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {{0, 1, 2, 3}});
    const float u[] = {1.0f, 0.5f, 1.0f, 1.5f}; // either triangle stays in a tile
    mesh->SetUVCount(4);
    for (int i = 0; i < 4; ++i)
        mesh->SetTextureCoordinate(i, {u[i], 0.5f});
    for (int corner = 0; corner < 3; ++corner)
        mesh->SetUVIndex(0, corner, corner);
    mesh->SetUVIndex(1, 0, 0);
    mesh->SetUVIndex(1, 1, 2);
    mesh->SetUVIndex(1, 2, 3);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::UVCrossing);
    mesh->SetFakeTriangle(1, false);
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(UVCrossing, coordinatesThatAreNoNumbersDoNotHoldItUp)
{
    EXPECT_EQ(faultsOf(squareOverTiles(NAN, 0.5f)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(NAN, NAN)), 0);
    EXPECT_EQ(faultsOf(squareOverTiles(0.0f, INFINITY)), MeshChecker::UVCrossing);
}

TEST(MissingUVs, someFacesWithAndOthersWithoutAreOne)
{
    const MeshPointer mesh = gridWithUVs(3);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::MissingUVs);
    EXPECT_EQ(placesOf(MeshChecker::MissingUVs, *mesh),
              QStringList{QStringLiteral("polygon 3 (mesh face 3)")});
}

TEST(MissingUVs, allFacesOrNoneAreFine)
{
    EXPECT_EQ(faultsOf(gridWithUVs(4)), 0);
    EXPECT_EQ(faultsOf(gridWithUVs(0)), 0);
    MeshPointer mesh = gridWithUVs(1);
    for (int corner = 0; corner < 4; ++corner)
        mesh->SetUVIndex(0, corner, -1);
    ASSERT_TRUE(mesh->HasUVs()); // room for them, but none set
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(MissingUVs, oneCornerWithoutIsEnough)
{
    MeshPointer mesh = gridWithUVs(4);
    mesh->SetUVIndex(2, 1, -1);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::MissingUVs);
}

TEST(MissingUVs, aCoordinateThatIsGoneIsMissing)
{
    MeshPointer mesh = gridWithUVs(4);
    mesh->SetUVCount(2);
    for (int corner = 0; corner < 4; ++corner)
        mesh->SetUVIndex(1, corner, 1);
    EXPECT_EQ(faultsOf(mesh), 0);
    mesh->SetUVCount(1);
    EXPECT_EQ(placesOf(MeshChecker::MissingUVs, *mesh),
              QStringList{QStringLiteral("polygon 1 (mesh face 1)")});
}
