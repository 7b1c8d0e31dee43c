// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"
#include "tests/support/logcatcher.h"
#include "tests/support/models.h"

#include <orvane/geometry/polygons.h>
#include <orvane/geometry/subdivisionlevel.h>

using namespace orvane;

namespace {

const char Square[] = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n";

class ObjMesh : public FileTest
{
protected:
    const Mesh &level(const QByteArray &text)
    {
        return *mesh(file(QStringLiteral("test.obj"), text))->CurrentLevel();
    }
    QString error(const QByteArray &text) { return meshError(QStringLiteral("test.obj"), text); }
};

struct Counts
{
    const char *file;
    bool quads;
    int faces;
    int vertices; // that a face uses
};

class RealModel : public FileTest, public testing::WithParamInterface<Counts>
{};

} // namespace

TEST_F(ObjMesh, cornersTakeVerticesByTheirNumbers)
{
    const Mesh &read = level(QByteArray(Square) + "f 4 3 2\nf 1 2 4\n");
    EXPECT_EQ(read.VertexCount(), 4);
    EXPECT_EQ(read.Corners(), QVector<int>({3, 2, 1, 0, 1, 3}));
    EXPECT_FALSE(read.HasUVs());
}

TEST_F(ObjMesh, verticesAtOnePlaceStayApart)
{
    const Mesh &read = level("v 0 0 0\nv 1 0 0\nv 0 1 0\nv 0 0 0\nv 0 -1 0\nf 1 2 3\nf 4 5 2\n");
    EXPECT_EQ(read.VertexCount(), 5);
    EXPECT_EQ(read.Corners(), QVector<int>({0, 1, 2, 3, 4, 1}));
}

TEST_F(ObjMesh, negativeNumbersCountBackwards)
{
    EXPECT_EQ(level(QByteArray(Square) + "f -4 -3 -2\nv 5 5 5\nf -1 -2 -3\n").Corners(),
              QVector<int>({0, 1, 2, 4, 3, 2}));
}

TEST_F(ObjMesh, facesMayComeBeforeTheirVertices)
{
    EXPECT_EQ(level("f 1 2 3\n" + QByteArray(Square)).Corners(), QVector<int>({0, 1, 2}));
}

TEST_F(ObjMesh, verticesOfNoFaceAreLeftOut)
{
    const Mesh &read = level("v 9 9 9\n" + QByteArray(Square) + "v 8 8 8\nf 2 3 4\n");
    EXPECT_EQ(read.VertexCount(), 3);
    EXPECT_EQ(read.VertexPosition(0), Vector(0, 0, 0));
    EXPECT_FLOAT_EQ(read.Bounds().maximum.x, 1.0f);
}

TEST_F(ObjMesh, quadsStayQuadsWhenEveryFaceIsOne)
{
    const Mesh &read = level(QByteArray(Square) + "f 1 2 3 4\n");
    EXPECT_TRUE(read.IsQuads());
    EXPECT_EQ(read.Corners(), QVector<int>({0, 1, 2, 3}));
}

TEST_F(ObjMesh, mixedPolygonsBecomeTrianglesAndFakeOnes)
{
    const Mesh &read =
        level(QByteArray(Square) + "v 2 0 0\nv 0 2 0\nf 1 2 3 4\nf 2 5 3\nf 1 5 3 6 4\n");
    EXPECT_FALSE(read.IsQuads());
    EXPECT_EQ(read.FaceCount(), 6);
    const QVector<bool> fake = {false, true, false, false, true, true};
    for (int face = 0; face < 6; ++face)
        EXPECT_EQ(read.IsFakeTriangle(face), fake[face]) << face;
    EXPECT_EQ(read.Polygons().corners, QVector<int>({0, 1, 2, 3, 1, 4, 2, 0, 4, 2, 5, 3}));
}

TEST_F(ObjMesh, textureCoordinatesStayWithCorners)
{
    const Mesh &read =
        level(QByteArray(Square) + "vt 0 0.25\nvt 0.5\nvt 1 1 0\nf 1/1 2/2/7 3/-1\nf 1//3 3/3 4\n");
    EXPECT_EQ(read.UVCount(), 3);
    EXPECT_FLOAT_EQ(read.TextureCoordinate(0).v, 0.25f);
    EXPECT_FLOAT_EQ(read.TextureCoordinate(1).v, 0.0f);
    const int expected[2][3] = {{0, 1, 2}, {-1, 2, -1}};
    for (int face = 0; face < 2; ++face) {
        for (int corner = 0; corner < 3; ++corner)
            EXPECT_EQ(read.UVIndex(face, corner), expected[face][corner]);
    }
}

TEST_F(ObjMesh, textOfOtherProgramsIsRead)
{
    const QByteArray text =
        "\xef\xbb\xbf# comment\r\nmtllib none.mtl\r\no a b\r\n\tv  +0 0.0 -0 1.0 # w\r\n"
        "v 1 0 0 0.5 0.5 0.5\r\nv 1e0 1 1e-999\r\nvn 0 0 1\r\nusemtl x\r\ns off\r\n"
        "f 1 2\\\r\n 3\r\nl 1 2\r\np 1\r\n";
    const Mesh &read = level(text);
    EXPECT_EQ(read.Corners(), QVector<int>({0, 1, 2}));
    EXPECT_EQ(read.VertexPosition(2), Vector(1, 1, 0));
}

TEST_F(ObjMesh, numbersTooSmallForAFloatAreZero)
{
    const QByteArray longZero = "0." + QByteArray(60, '0') + "1";
    const Mesh &read = level("v 1e-50 -1E-999 " + longZero + "\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
    EXPECT_EQ(read.VertexPosition(0), Vector(0, 0, 0));
}

TEST_F(ObjMesh, carriageReturnsAloneEndLines)
{
    EXPECT_EQ(
        error("v 0 0 0\rv 1 0 0\rv x 0 0\rf 1 2 3\r"),
        QStringLiteral("test.obj: line 3: vertex 3: expected three finite numbers after \"v\"."));
}

TEST_F(ObjMesh, flatFacesAreDroppedAndCounted)
{
    const LogCatcher log;
    const Mesh &read = level(QByteArray(Square) + "f 1 2 3\nf 1 2\nf 1 2 2 1\nf 3 3 3\nf\n");
    EXPECT_EQ(read.FaceCount(), 1);
    EXPECT_EQ(log.text(), QStringLiteral("test.obj: 4 of 5 faces have fewer than three different "
                                         "corners and were left out."));
}

TEST_F(ObjMesh, onlyFlatFacesAreNoMesh)
{
    EXPECT_EQ(error(QByteArray(Square) + "f 1 2 1\nf 2 3\n"),
              QStringLiteral("test.obj: none of its 2 faces has three different corners; "
                             "expected at least one that has."));
}

TEST_F(ObjMesh, vertexOutOfRangeNamesLineFaceAndVertex)
{
    EXPECT_EQ(error(QByteArray(Square) + "f 1 2 3\n\nf 1 2 9\n"),
              QStringLiteral(
                  "test.obj: line 7: face 2 refers to vertex 9, but the file has 4 vertices."));
}

TEST_F(ObjMesh, backwardNumberOutOfRangeNamesLineFaceAndVertex)
{
    EXPECT_EQ(
        error(QByteArray(Square) + "f 1 2 -5\n"),
        QStringLiteral("test.obj: line 5: face 1 refers to vertex -5, but only 4 come before it."));
}

TEST_F(ObjMesh, vertexZeroIsRefused)
{
    EXPECT_EQ(
        error(QByteArray(Square) + "f 0 1 2\n"),
        QStringLiteral("test.obj: line 5: face 1 refers to vertex 0, but they count from 1."));
}

TEST_F(ObjMesh, textureCoordinateOutOfRangeNamesLineAndFace)
{
    EXPECT_EQ(
        error(QByteArray(Square) + "vt 0 0\nf 1/1 2/1 3/2\n"),
        QStringLiteral("test.obj: line 6: face 1 refers to texture coordinate 2, but the file "
                       "has 1 texture coordinates."));
}

TEST_F(ObjMesh, cornerThatIsNoNumberIsNamed)
{
    for (const char *corner : {"x", "1.5", "99999999999", "/1"}) {
        const QString text = error(QByteArray(Square) + "f 1 2 " + corner + "\n");
        EXPECT_TRUE(text.startsWith(QStringLiteral("test.obj: line 5: face 1 has \"")))
            << qPrintable(text);
        EXPECT_TRUE(text.endsWith(QStringLiteral("\" in the place of the number of a vertex.")));
    }
}

TEST_F(ObjMesh, coordinateThatIsNoFiniteNumberNamesTheVertex)
{
    for (const char *bad : {"nan", "inf", "-inf", "1e99", "abc", "1,5", ""}) {
        EXPECT_EQ(error("v 0 0 0\nv 1 0 " + QByteArray(bad) + "\nf 1 2 1\n"),
                  QStringLiteral(
                      "test.obj: line 2: vertex 2: expected three finite numbers after \"v\"."));
    }
}

TEST_F(ObjMesh, textureCoordinateThatIsNoFiniteNumberIsNamed)
{
    EXPECT_EQ(error(QByteArray(Square) + "vt 0 nan\nf 1 2 3\n"),
              QStringLiteral(
                  "test.obj: line 5: texture coordinate 1: expected finite numbers after \"vt\"."));
}

TEST_P(RealModel, countsAreThoseOfTheFile)
{
    const Counts counts = GetParam();
    const QString model = modelFile(QString::fromLatin1(counts.file));
    if (model.isEmpty())
        GTEST_SKIP() << "The folder of real models is not at hand.";
    const Geometry *geometry = mesh(model);
    const Mesh &level = *geometry->CurrentLevel();
    EXPECT_EQ(level.IsQuads(), counts.quads);
    EXPECT_EQ(level.FaceCount(), counts.faces);
    EXPECT_EQ(level.VertexCount(), counts.vertices);
    EXPECT_EQ(level.Polygons().Count(), counts.faces);
    EXPECT_EQ(geometry->Name() + QStringLiteral(".obj"), QString::fromLatin1(counts.file));
}

INSTANTIATE_TEST_SUITE_P(Models, RealModel,
                         testing::Values(Counts{"spot_quads.obj", true, 2928, 2930},
                                         Counts{"spot_triangles.obj", false, 5856, 2930},
                                         Counts{"bunny.obj", false, 69451, 34834},
                                         Counts{"fandisk.obj", false, 12946, 6475}));
