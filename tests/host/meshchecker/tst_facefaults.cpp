// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"

#include <QStringList>

#include <gtest/gtest.h>

using orvane::MeshChecker;
using orvane::Topology;
using orvane::Vector;

namespace {

int faultsOf(const MeshPointer &mesh)
{
    return MeshChecker().Validate(mesh.get());
}

MeshPointer quads(const QVector<Vector> &positions, const QVector<int> &corners)
{
    return MeshPointer(meshOf(Topology::Quads, positions, corners));
}

// Diagonal 5; vertex 1 as far from vertex 0 as told.
MeshPointer rectangleWithSide(float length)
{
    return quads({{0, 0, 0}, {length, 0, 0}, {4, 3, 0}, {0, 3, 0}}, {0, 1, 2, 3});
}

// Diagonal 5; its third corner as high over the first side as told.
MeshPointer triangleOfHeight(float height)
{
    return polygonMesh({{0, 0, 0}, {5, 0, 0}, {2, height, 0}}, {{0, 1, 2}});
}

const QVector<Vector> Corners{{0, 0, 0}, {3, 0, 0}, {2, 2, 0}, {0, 1, 0}, {1, 4, 0}};

} // namespace

TEST(TwoSidedFace, aQuadThatGoesToAndFroIsOne)
{
    const MeshPointer mesh = quads(Corners, {0, 1, 0, 1});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::TwoSidedFace);
    EXPECT_EQ(placesOf(MeshChecker::TwoSidedFace, *mesh),
              QStringList{QStringLiteral("polygon 0 (mesh face 0)")});
}

TEST(TwoSidedFace, aTriangleWithARepeatedCornerIsOneWhereverTheRepetitionIs)
{
    const int expected = MeshChecker::TwoSidedFace | MeshChecker::ZeroLengthEdge;
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 1, 1}})), expected);
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 1, 0}})), expected);
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 0, 1}})), expected);
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 0, 1, 1, 0, 1}})), expected);
}

TEST(TwoSidedFace, threeVerticesAreEnoughToBeNone)
{
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 1, 2}})), 0);
    EXPECT_FALSE(faultsOf(quads(Corners, {0, 1, 0, 2})) & MeshChecker::TwoSidedFace);
}

TEST(TwoSidedFace, aFaceOfOneVertexHasNoSidesAtAll)
{
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{2, 2, 2}})),
              MeshChecker::ZeroLengthEdge | MeshChecker::DegenerateFace);
}

TEST(TooManySides, isAFaultFromSeventeenOn)
{
    EXPECT_EQ(faultsOf(MeshPointer(polygonOfFakes(16))), 0);
    const MeshPointer mesh(polygonOfFakes(17));
    EXPECT_EQ(faultsOf(mesh), MeshChecker::TooManySides);
}

TEST(TooManySides, repeatedCornersAreNoSides)
{
    const MeshPointer regular(polygonOfFakes(16));
    QVector<int> corners;
    for (int v = 0; v < 16; ++v)
        corners << v << v;
    EXPECT_EQ(faultsOf(polygonMesh(regular->Positions(), {corners})), MeshChecker::ZeroLengthEdge);
}

TEST(ZeroLengthEdge, isOneUpToAMillionthOfTheDiagonal)
{
    EXPECT_EQ(faultsOf(rectangleWithSide(0.0f)), MeshChecker::ZeroLengthEdge);
    EXPECT_EQ(faultsOf(rectangleWithSide(4.9e-6f)), MeshChecker::ZeroLengthEdge);
    EXPECT_EQ(faultsOf(rectangleWithSide(5.1e-6f)), 0);
    EXPECT_EQ(placesOf(MeshChecker::ZeroLengthEdge, *rectangleWithSide(0.0f)),
              QStringList{QStringLiteral("edge 0-1")});
}

TEST(ZeroLengthEdge, isMeasuredAgainstTheFacesAndNotAgainstStrayVertices)
{
    MeshPointer mesh = rectangleWithSide(1.0f);
    mesh->SetVertexCount(5);
    mesh->SetVertexPosition(4, {1e9f, 0, 0});
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(ZeroLengthEdge, scaleDoesNotMatter)
{
    for (float scale : {1e-18f, 1e-9f, 1.0f, 1e9f, 1e30f}) {
        const auto scaled = [scale](const MeshPointer &mesh) {
            for (int v = 0; v < mesh->VertexCount(); ++v)
                mesh->SetVertexPosition(v, mesh->VertexPosition(v) * scale);
            return faultsOf(mesh);
        };
        EXPECT_EQ(scaled(rectangleWithSide(4.9e-6f)), MeshChecker::ZeroLengthEdge) << scale;
        EXPECT_EQ(scaled(rectangleWithSide(5.1e-6f)), 0) << scale;
        EXPECT_EQ(scaled(MeshPointer(sphere(8, 12))), 0) << scale;
    }
}

TEST(ZeroLengthEdge, aCornerRepeatedRightAwayIsOne)
{
    const MeshPointer mesh = quads(Corners, {0, 1, 2, 2});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::ZeroLengthEdge);
    EXPECT_EQ(placesOf(MeshChecker::ZeroLengthEdge, *mesh),
              QStringList{QStringLiteral("edge 2-2")});
}

TEST(ZeroLengthEdge, aMeshShrunkToAPointHasNothingElse)
{
    MeshPointer mesh(tetrahedron());
    for (int v = 0; v < 4; ++v)
        mesh->SetVertexPosition(v, {7, 7, 7});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::ZeroLengthEdge | MeshChecker::DegenerateFace);
    EXPECT_EQ(placesOf(MeshChecker::ZeroLengthEdge, *mesh).size(), 6);
}

TEST(LaminaFaces, areFacesOfTheSameVerticesInAnyOrder)
{
    const MeshPointer mesh = quads(Corners, {0, 1, 2, 3, 0, 2, 1, 3});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::LaminaFaces);
    EXPECT_EQ(placesOf(MeshChecker::LaminaFaces, *mesh).size(), 2);
}

TEST(LaminaFaces, backToBackTheirVerticesHaveTwoEdges)
{
    EXPECT_EQ(faultsOf(polygonMesh(Corners, {{0, 1, 2}, {2, 1, 0}})),
              MeshChecker::LaminaFaces | MeshChecker::InteriorValenceTwo);
}

TEST(LaminaFaces, insideAMeshTheirEdgesAreNonManifold)
{
    MeshPointer mesh(gridOfQuads(3, 3));
    mesh->SetFaceCount(10);
    for (int corner = 0; corner < 4; ++corner)
        mesh->SetQuadIndex(9, corner, mesh->VertexIndex(4, corner));
    EXPECT_EQ(faultsOf(mesh), MeshChecker::LaminaFaces | MeshChecker::NonManifoldEdge);
    EXPECT_EQ(placesOf(MeshChecker::LaminaFaces, *mesh),
              (QStringList{QStringLiteral("polygon 4 (mesh face 4)"),
                           QStringLiteral("polygon 9 (mesh face 9)")}));
}

TEST(LaminaFaces, polygonsAreComparedWhole)
{
    // Their first triangles are the same, the polygons are not.
    const MeshPointer mesh = polygonMesh(Corners, {{0, 1, 2, 3}, {0, 1, 2, 4}});
    EXPECT_FALSE(faultsOf(mesh) & MeshChecker::LaminaFaces);
    // Neither is a face on a part of another.
    EXPECT_FALSE(faultsOf(polygonMesh(Corners, {{0, 1, 2, 3}, {0, 1, 2}}))
                 & MeshChecker::LaminaFaces);
}

TEST(LaminaFaces, samePlacesOnOtherVerticesAreNoFault)
{
    EXPECT_EQ(
        faultsOf(polygonMesh({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {0, 1, 0}},
                             {{0, 1, 2}, {3, 4, 5}})),
        0);
}

TEST(DegenerateFace, threeCornersOnALineInAnyDirectionAreOne)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 1000; ++i) {
        const Vector from = randomVector(random);
        const Vector step = randomVector(random);
        const float middle = randomBetween(random, 0.1f, 0.9f);
        const MeshPointer mesh =
            polygonMesh({from, from + step * middle, from + step}, {{0, 1, 2}});
        if (step.Length() < 0.5f)
            continue; // too coarse so far from the origin
        ASSERT_EQ(faultsOf(mesh), MeshChecker::DegenerateFace) << "line " << i;
    }
}

TEST(DegenerateFace, isOneUpToAMillionthOfTheDiagonalInHeight)
{
    EXPECT_EQ(faultsOf(triangleOfHeight(0.0f)), MeshChecker::DegenerateFace);
    EXPECT_EQ(faultsOf(triangleOfHeight(4.9e-6f)), MeshChecker::DegenerateFace);
    EXPECT_EQ(faultsOf(triangleOfHeight(1.1e-5f)), 0);
    EXPECT_EQ(faultsOf(triangleOfHeight(1e-3f)), 0);
}

TEST(DegenerateFace, aSmallFaceOfALargeMeshIsNone)
{
    MeshPointer mesh = polygonMesh({{0, 0, 0},
                                    {1000, 0, 0},
                                    {0, 1000, 0},
                                    {0.01f, 0.01f, 5},
                                    {0.02f, 0.01f, 5},
                                    {0.01f, 0.02f, 5}},
                                   {{0, 1, 2}, {3, 4, 5}});
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(DegenerateFace, aCornerInAStraightSideOfAPolygonIsNone)
{
    // The first triangle of the fan is flat, the polygon is not.
    EXPECT_EQ(faultsOf(polygonMesh({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 1, 0}, {0, 1, 0}},
                                   {{0, 1, 2, 3, 4}})),
              0);
}

TEST(DegenerateFace, aHollowPolygonWhoseFanFoldsOverIsNone)
{
    EXPECT_EQ(faultsOf(polygonMesh({{0, 3, 0}, {-2, 0, 0}, {0, 1, 0}, {2, 0, 0}}, {{1, 2, 3, 0}})),
              0);
}

TEST(DegenerateFace, aPolygonFoldedFlatOntoItselfIsOne)
{
    const MeshPointer mesh = quads({{0, 0, 0}, {1, 0, 0}, {3, 0, 0}, {2, 0, 0}}, {0, 1, 2, 3});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::DegenerateFace);
    EXPECT_TRUE(faultsOf(quads(Corners, {0, 1, 0, 2})) & MeshChecker::DegenerateFace);
}
