// SPDX-License-Identifier: MIT
#include "mesh/meshbuilder.h"
#include "tests/support/dialoganswer.h"
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/timelimit.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QElapsedTimer>
#include <QScopedPointer>

#include <algorithm>
#include <cmath>
#include <iostream>

using orvane::Mesh;
using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

using Face = QVector<int>;
using Faces = QList<Face>;

class MeshBuilding : public SceneCleaner
{};

MeshBuilder builderOf(const QVector<Vector> &positions, const QList<Face> &polygons = {})
{
    MeshBuilder builder;
    builder.positions = positions;
    builder.normals.fill({0, 0, 1}, positions.size());
    for (const Face &polygon : polygons)
        builder.addPolygon(polygon);
    return builder;
}

QVector<Vector> regularPolygon(int corners)
{
    QVector<Vector> positions;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * Pi * i / corners;
        positions.append(Vector(float(std::cos(angle)), float(std::sin(angle)), 0.0f));
    }
    return positions;
}

Face firstNumbers(int count)
{
    Face face;
    for (int i = 0; i < count; ++i)
        face.append(i);
    return face;
}

// A row of unit squares: vertex i below, vertex i + columns + 1 above it.
QVector<Vector> rowOfSquares(int columns)
{
    QVector<Vector> positions;
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x <= columns; ++x)
            positions.append(Vector(float(x), float(y), 0.0f));
    }
    return positions;
}

const QVector<Vector> NotchedPentagon{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {1, 0.5f, 0}, {0, 2, 0}};

Face cornersOf(const Mesh &mesh, int face)
{
    Face corners;
    for (int i = 0; i < mesh.CornersPerFace(); ++i)
        corners.append(mesh.VertexIndex(face, i));
    return corners;
}

Faces facesOf(const Mesh &mesh)
{
    Faces faces;
    for (int i = 0; i < mesh.FaceCount(); ++i)
        faces.append(cornersOf(mesh, i));
    return faces;
}

QVector<int> fakeFacesOf(const Mesh &mesh)
{
    QVector<int> fakes;
    for (int i = 0; i < mesh.FaceCount(); ++i) {
        if (mesh.IsFakeTriangle(i))
            fakes.append(i);
    }
    return fakes;
}

double doubledArea(const MeshBuilder &builder, const Face &triangle)
{
    const Vector a = builder.positions[triangle[0]];
    const Vector b = builder.positions[triangle[1]];
    const Vector c = builder.positions[triangle[2]];
    return double(((b - a) & (c - a)).z);
}

} // namespace

TEST_F(MeshBuilding, onlyTrianglesGiveATriangleMeshOfOneFaceEachAndNoFakeOnes)
{
    const MeshBuilder builder = builderOf(rowOfSquares(1), {{0, 1, 3}, {0, 3, 2}});
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_FALSE(mesh->IsQuads());
    EXPECT_EQ(facesOf(*mesh), Faces({{0, 1, 3}, {0, 3, 2}}));
    EXPECT_TRUE(fakeFacesOf(*mesh).isEmpty());
}

TEST_F(MeshBuilding, onlyQuadsGiveAQuadMesh)
{
    const MeshBuilder builder = builderOf(rowOfSquares(2), {{0, 1, 4, 3}, {1, 2, 5, 4}});
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_TRUE(mesh->IsQuads());
    EXPECT_EQ(facesOf(*mesh), Faces({{0, 1, 4, 3}, {1, 2, 5, 4}}));
}

TEST_F(MeshBuilding, oneQuadAndOneTriangleGiveThreeTrianglesTheSecondOfTheQuadFake)
{
    const MeshBuilder builder = builderOf(rowOfSquares(2), {{0, 1, 4, 3}, {1, 2, 4}});
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_FALSE(mesh->IsQuads());
    EXPECT_EQ(facesOf(*mesh), Faces({{0, 1, 4}, {0, 4, 3}, {1, 2, 4}}));
    EXPECT_EQ(fakeFacesOf(*mesh), QVector<int>{1});

    const MeshBuilder otherOrder = builderOf(rowOfSquares(2), {{1, 2, 4}, {0, 1, 4, 3}});
    const QScopedPointer<Mesh> other(otherOrder.createMesh());
    ASSERT_TRUE(other);
    EXPECT_EQ(facesOf(*other), Faces({{1, 2, 4}, {0, 1, 4}, {0, 4, 3}}));
    EXPECT_EQ(fakeFacesOf(*other), QVector<int>{2});
}

TEST_F(MeshBuilding, aConvexPentagonIsKeptWholeAndBecomesThreeTrianglesTheLastTwoFake)
{
    const MeshBuilder builder = builderOf(regularPolygon(5), {firstNumbers(5)});
    EXPECT_EQ(builder.faces, Faces({{0, 1, 2, 3, 4}}));
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_EQ(facesOf(*mesh), Faces({{0, 1, 2}, {0, 2, 3}, {0, 3, 4}}));
    EXPECT_EQ(fakeFacesOf(*mesh), QVector<int>({1, 2}));
}

TEST_F(MeshBuilding, aConvexDecagonGoesThroughTheTessellatorAsDoesAConcavePentagon)
{
    for (int corners : {5, 6, 7, 8, 9}) {
        const LogCatcher log;
        const MeshBuilder whole = builderOf(regularPolygon(corners), {firstNumbers(corners)});
        EXPECT_EQ(whole.faces, Faces({firstNumbers(corners)}));
        EXPECT_EQ(log.count(), 0) << corners;
    }
    const LogCatcher log;
    const MeshBuilder decagon = builderOf(regularPolygon(10), {firstNumbers(10)});
    EXPECT_EQ(log.count(), 10);
    EXPECT_EQ(decagon.faces.size(), 8);

    const MeshBuilder pentagon = builderOf(NotchedPentagon, {firstNumbers(5)});
    EXPECT_TRUE(pentagon.isConcave(firstNumbers(5)));
    EXPECT_EQ(log.count(), 15);
    EXPECT_EQ(pentagon.faces.size(), 3);
    for (const MeshBuilder &builder : {decagon, pentagon}) {
        const QScopedPointer<Mesh> mesh(builder.createMesh());
        ASSERT_TRUE(mesh);
        EXPECT_EQ(facesOf(*mesh), builder.faces);
        EXPECT_TRUE(fakeFacesOf(*mesh).isEmpty());
        for (const Face &triangle : builder.faces)
            EXPECT_GT(doubledArea(builder, triangle), 0.0);
    }
}

TEST_F(MeshBuilding, fiveCollinearCornersAreTakenAsTheArithmeticGivesThem)
{
    // No corner turns: all cross products are zero, at a right angle to each other as it were.
    const MeshBuilder builder =
        builderOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}}, {firstNumbers(5)});
    EXPECT_FALSE(builder.isConcave(firstNumbers(5)));
    EXPECT_EQ(builder.polygonNormal(firstNumbers(5)), Vector());
    EXPECT_EQ(builder.faces, Faces({firstNumbers(5)}));
}

TEST_F(MeshBuilding, roomIsKeptForAHundredVertices)
{
    const MeshBuilder builder;
    EXPECT_GE(builder.positions.capacity(), 100);
    EXPECT_GE(builder.normals.capacity(), 100);
    EXPECT_TRUE(builder.positions.isEmpty());
    EXPECT_TRUE(builder.normals.isEmpty());
    EXPECT_TRUE(builder.faces.isEmpty());
}

TEST_F(MeshBuilding, fewerThanThreeCornersAreIgnored)
{
    EXPECT_TRUE(builderOf(rowOfSquares(1), {{}, {0}, {0, 1}}).faces.isEmpty());
}

TEST_F(MeshBuilding, trianglesAndQuadsAreStoredUnseen)
{
    const LogCatcher log;
    const MeshBuilder dart = builderOf(NotchedPentagon, {{0, 1, 3, 4}});
    EXPECT_TRUE(dart.isConcave({4, 0, 1, 3}));
    EXPECT_EQ(dart.faces, Faces({{0, 1, 3, 4}}));
    EXPECT_EQ(builderOf({}, {{0, 1, 2}, {3, 4, 5, 6}}).faces, Faces({{0, 1, 2}, {3, 4, 5, 6}}));
    EXPECT_EQ(log.count(), 0);
}

TEST_F(MeshBuilding, largerFacesAreIgnoredWhileThereAreNoPositions)
{
    const LogCatcher log;
    EXPECT_TRUE(builderOf({}, {firstNumbers(5), firstNumbers(10)}).faces.isEmpty());
    EXPECT_EQ(log.count(), 0);
}

TEST_F(MeshBuilding, cornersGoToTheTessellatorInFaceOrderInTheFrameOfTheFace)
{
    // The frame of a face that looks at +z and starts along +x: y, x, z.
    const LogCatcher log;
    const MeshBuilder builder = builderOf(NotchedPentagon, {{0, 1, 2, 3, 4}});
    EXPECT_EQ(log.texts(), QStringList({QStringLiteral("  Adding point: 0, 0, 0\n"),
                                        QStringLiteral("  Adding point: 0, 2, 0\n"),
                                        QStringLiteral("  Adding point: 2, 2, 0\n"),
                                        QStringLiteral("  Adding point: 0.5, 1, 0\n"),
                                        QStringLiteral("  Adding point: 2, 0, 0\n")}));
    // It runs clockwise there and is walked backwards: ears 0 4 3, 3 2 1, 1 0 3, turned round.
    EXPECT_EQ(builder.faces, Faces({{3, 4, 0}, {1, 2, 3}, {3, 0, 1}}));
}

TEST_F(MeshBuilding, splitTrianglesLookWhereTheirNormalsLookWhicheverWayTheFaceRuns)
{
    Face backwards = firstNumbers(5);
    std::reverse(backwards.begin(), backwards.end());
    for (const Face &face : {firstNumbers(5), backwards}) {
        for (float side : {1.0f, -1.0f}) {
            MeshBuilder builder = builderOf(NotchedPentagon);
            builder.normals.fill({0, 0, side});
            builder.addPolygon(face);
            ASSERT_EQ(builder.faces.size(), 3);
            for (const Face &triangle : qAsConst(builder.faces))
                EXPECT_GT(doubledArea(builder, triangle) * double(side), 0.0);
        }
    }
}

TEST_F(MeshBuilding, aTriangleThatLooksNeitherWayIsTurnedRound)
{
    // Without normals the product is zero, which is not below zero.
    MeshBuilder blind = builderOf(NotchedPentagon);
    blind.normals.fill(Vector());
    blind.addPolygon(firstNumbers(5));
    EXPECT_EQ(blind.faces, builderOf(NotchedPentagon, {firstNumbers(5)}).faces);
}

TEST_F(MeshBuilding, faceNumbersNeedNotStartAtZero)
{
    QVector<Vector> positions = rowOfSquares(4);
    const int shift = positions.size();
    positions += NotchedPentagon;
    const MeshBuilder shifted =
        builderOf(positions, {{shift, shift + 1, shift + 2, shift + 3, shift + 4}});
    Faces expected = builderOf(NotchedPentagon, {firstNumbers(5)}).faces;
    for (Face &face : expected) {
        for (int &vertex : face)
            vertex += shift;
    }
    EXPECT_EQ(shifted.faces, expected);
}

TEST_F(MeshBuilding, aFaceOfTenThousandCornersIsQuick)
{
    const int count = 10000;
    QVector<Vector> positions = regularPolygon(count);
    for (Vector &position : positions)
        position *= 100.0f;
    const LogCatcher log;
    QElapsedTimer timer;
    timer.start();
    const MeshBuilder builder = builderOf(positions, {firstNumbers(count)});
    std::cout << count << " corners: " << timer.elapsed() << " ms" << std::endl;
    EXPECT_LT(timer.elapsed(), timeLimit(5000));
    EXPECT_EQ(builder.faces.size(), count - 2);
    EXPECT_EQ(log.count(), count);
}

TEST_F(MeshBuilding, theMeshCarriesNamePositionsAndNormalsAndNoTextureCoordinates)
{
    MeshBuilder builder = builderOf(rowOfSquares(1), {{0, 1, 3, 2}});
    for (int i = 0; i < 4; ++i)
        builder.normals[i] = Vector(0.1f * float(i), 0.5f, 2.0f);
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_EQ(mesh->Name(), QStringLiteral("Sketched Mesh"));
    EXPECT_TRUE(dynamic_cast<orvane::SubdivisionLevel *>(mesh.data()));
    EXPECT_EQ(mesh->Positions(), builder.positions);
    EXPECT_EQ(mesh->UVCount(), 0);
    EXPECT_FALSE(mesh->HasUVs());
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(mesh->VertexNormal(i), builder.normals[i]);
}

TEST_F(MeshBuilding, noMeshWithoutFacesOrWithOneOfFewerThanThreeCorners)
{
    MeshBuilder builder = builderOf(rowOfSquares(2));
    EXPECT_EQ(builder.createMesh(), nullptr);
    builder.faces = Faces{{0, 1}};
    EXPECT_EQ(builder.createMesh(), nullptr);
    builder.faces = Faces{{0, 1, 4, 3}, {1, 2, 5, 4}, {}};
    EXPECT_EQ(builder.createMesh(), nullptr);
    builder.faces = Faces{{0, 1, 3}, {0, 1}, {1, 2, 5, 4}};
    EXPECT_EQ(builder.createMesh(), nullptr);
}

TEST_F(MeshBuilding, nobodyLooksForShortFacesOnceTheKindIsMixed)
{
    MeshBuilder builder = builderOf(rowOfSquares(2));
    builder.faces = Faces{{1, 2, 4}, {0, 1, 4, 3}, {0, 1}};
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    ASSERT_TRUE(mesh);
    EXPECT_EQ(facesOf(*mesh), Faces({{1, 2, 4}, {0, 1, 4}, {0, 4, 3}}));
}

TEST_F(MeshBuilding, aMeshWithoutFaultsIsNotAskedAbout)
{
    DialogAnswer answer(QStringLiteral("close"));
    const MeshBuilder builder = builderOf(rowOfSquares(2), {{0, 1, 4, 3}, {1, 2, 4}});
    const QScopedPointer<Mesh> mesh(builder.createMesh());
    EXPECT_TRUE(mesh);
    EXPECT_EQ(answer.count(), 0);
}

TEST_F(MeshBuilding, aMeshWithFaultsIsKeptWhenTheUserAcceptsIt)
{
    DialogAnswer answer(QStringLiteral("accept"));
    const MeshBuilder twice = builderOf(rowOfSquares(1), {{0, 1, 3, 2}, {0, 1, 3, 2}});
    const QScopedPointer<Mesh> mesh(twice.createMesh());
    EXPECT_EQ(answer.count(), 1);
    ASSERT_TRUE(mesh);
    EXPECT_EQ(mesh->FaceCount(), 2);
}

TEST_F(MeshBuilding, aMeshWithFaultsIsGoneWhenTheUserClosesTheDialog)
{
    DialogAnswer answer(QStringLiteral("close"));
    const MeshBuilder twice = builderOf(rowOfSquares(1), {{0, 1, 3, 2}, {0, 1, 3, 2}});
    EXPECT_EQ(twice.createMesh(), nullptr); // the leak checker sees to the rest
    EXPECT_EQ(answer.count(), 1);
}
