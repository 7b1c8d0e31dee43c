// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/topology.h>

#include <gtest/gtest.h>

#include <QScopedPointer>

#include <climits>

using orvane::SubdivisionLevel;
using orvane::Topology;

namespace {

using MeshPointer = QScopedPointer<SubdivisionLevel>;

const int Outside[] = {-1, INT_MIN, 100, INT_MAX};

} // namespace

TEST(Topology, countsFacesByTheirCorners)
{
    const MeshPointer quads(gridOfQuads(3, 2));
    EXPECT_TRUE(quads->IsQuads());
    EXPECT_EQ(quads->CornersPerFace(), 4);
    EXPECT_EQ(quads->FaceCount(), 6);
    const MeshPointer triangles(gridOfTriangles(3, 2));
    EXPECT_FALSE(triangles->IsQuads());
    EXPECT_EQ(triangles->CornersPerFace(), 3);
    EXPECT_EQ(triangles->FaceCount(), 12);
}

TEST(Topology, joinsTheVerticesItWasGiven)
{
    const MeshPointer mesh(gridOfQuads(2, 1));
    EXPECT_EQ(mesh->VertexIndex(1, 0), 1);
    EXPECT_EQ(mesh->VertexIndex(1, 1), 2);
    EXPECT_EQ(mesh->VertexIndex(1, 2), 5);
    EXPECT_EQ(mesh->VertexIndex(1, 3), 4);
    EXPECT_EQ(mesh->Corners(), QVector<int>({0, 1, 4, 3, 1, 2, 5, 4}));
}

TEST(Topology, answersMinusOneOrFalseOutOfRange)
{
    const MeshPointer mesh(singleTriangle());
    for (const int index : Outside) {
        EXPECT_EQ(mesh->VertexIndex(index, 0), -1) << index;
        EXPECT_EQ(mesh->VertexIndex(0, index), -1) << index;
        EXPECT_EQ(mesh->UVIndex(index, 0), -1) << index;
        EXPECT_FALSE(mesh->IsFakeTriangle(index)) << index;
    }
    EXPECT_EQ(mesh->VertexIndex(0, 3), -1);
    EXPECT_EQ(mesh->VertexIndex(1, 0), -1);
}

TEST(Topology, logsAndIgnoresACornerOutOfRange)
{
    const MeshPointer mesh(gridOfTriangles(1, 1));
    const QVector<int> before = mesh->Corners();
    LogCatcher log;
    for (const int index : Outside) {
        mesh->SetTriangleIndex(index, 0, 1);
        mesh->SetTriangleIndex(0, index, 1);
        mesh->SetTriangleIndex(0, 0, index);
    }
    mesh->SetTriangleIndex(2, 0, 1);
    mesh->SetTriangleIndex(0, 3, 1);
    mesh->SetTriangleIndex(0, 0, 4);
    EXPECT_EQ(mesh->Corners(), before);
    EXPECT_EQ(log.count(), 15);
}

TEST(Topology, logsAndIgnoresACornerOfTheOtherKindOfFace)
{
    const MeshPointer triangle(singleTriangle());
    const MeshPointer quad(singleQuad());
    LogCatcher log;
    triangle->SetQuadIndex(0, 0, 1);
    quad->SetTriangleIndex(0, 0, 1);
    EXPECT_EQ(triangle->VertexIndex(0, 0), 0);
    EXPECT_EQ(quad->VertexIndex(0, 0), 0);
    EXPECT_EQ(log.count(), 2);
}

TEST(Topology, marksFakeTriangles)
{
    const MeshPointer mesh(gridOfTriangles(2, 1));
    EXPECT_FALSE(mesh->IsFakeTriangle(1));
    mesh->SetFakeTriangle(1, true);
    EXPECT_TRUE(mesh->IsFakeTriangle(1));
    EXPECT_FALSE(mesh->IsFakeTriangle(0));
    EXPECT_FALSE(mesh->IsFakeTriangle(2));
    mesh->SetFakeTriangle(1, false);
    EXPECT_FALSE(mesh->IsFakeTriangle(1));
}

TEST(Topology, marksNoFirstFaceNoQuadAndNoFaceOutOfRange)
{
    const MeshPointer triangles(gridOfTriangles(1, 1));
    const MeshPointer quads(gridOfQuads(2, 1));
    quads->SetFakeTriangleCount(1);
    LogCatcher log;
    triangles->SetFakeTriangle(0, true);
    quads->SetFakeTriangle(1, true);
    for (const int index : Outside)
        triangles->SetFakeTriangle(index, true);
    EXPECT_EQ(log.count(), 6);
    EXPECT_FALSE(triangles->IsFakeTriangle(0));
    EXPECT_FALSE(quads->IsFakeTriangle(1));
    triangles->SetFakeTriangle(0, false);
    EXPECT_EQ(log.count(), 6) << "the first face is not fake, and may be told so";
}

TEST(Topology, givesNewFacesNoMarkAndNoTextureCoordinates)
{
    const MeshPointer mesh(gridOfTriangles(1, 1));
    mesh->SetUVCount(1);
    mesh->SetUVIndex(0, 0, 0);
    mesh->SetFakeTriangle(1, true);
    mesh->SetFaceCount(4);
    EXPECT_TRUE(mesh->IsFakeTriangle(1));
    for (int face = 2; face < 4; ++face) {
        EXPECT_FALSE(mesh->IsFakeTriangle(face));
        for (int corner = 0; corner < 3; ++corner) {
            EXPECT_EQ(mesh->VertexIndex(face, corner), 0);
            EXPECT_EQ(mesh->UVIndex(face, corner), -1);
        }
    }
}

TEST(Topology, forgetsTheMarkOfAFaceThatIsCutOff)
{
    const MeshPointer mesh(gridOfTriangles(1, 1));
    mesh->SetFakeTriangle(1, true);
    mesh->SetFaceCount(1);
    mesh->SetFaceCount(2);
    EXPECT_FALSE(mesh->IsFakeTriangle(1));
}

TEST(Topology, hasTextureCoordinatesOnceACornerHasOne)
{
    const MeshPointer mesh(singleQuad());
    EXPECT_FALSE(mesh->HasUVs());
    EXPECT_EQ(mesh->UVIndex(0, 2), -1);
    mesh->SetUVCount(3);
    mesh->SetUVIndex(0, 2, 1);
    EXPECT_TRUE(mesh->HasUVs());
    EXPECT_EQ(mesh->UVIndex(0, 2), 1);
    EXPECT_EQ(mesh->UVIndex(0, 1), -1);
    mesh->SetUVIndex(0, 2, -1);
    EXPECT_EQ(mesh->UVIndex(0, 2), -1) << "a corner can lose its own";
}

TEST(Topology, logsAndIgnoresATextureCoordinateOutOfRange)
{
    const MeshPointer mesh(singleQuad());
    mesh->SetUVCount(2);
    LogCatcher log;
    mesh->SetUVIndex(0, 0, 2);
    mesh->SetUVIndex(0, 0, -2);
    mesh->SetUVIndex(1, 0, 0);
    mesh->SetUVIndex(0, 4, 0);
    EXPECT_EQ(log.count(), 4);
    EXPECT_FALSE(mesh->HasUVs());
}

TEST(Topology, hasNoFacesForANegativeCount)
{
    const MeshPointer mesh(gridOfQuads(2, 2));
    mesh->SetFaceCount(-5);
    EXPECT_EQ(mesh->FaceCount(), 0);
}
