// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"
#include "tests/support/models.h"
#include "tests/support/shapes.h"

#include "host/files/meshfile.h"

#include <orvane/geometry/placement.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <cmath>
#include <limits>
#include <random>

using namespace orvane;

namespace {

using Maker = SubdivisionLevel *(*)();

// Distorts a shape so that no coordinate is a short number.
SubdivisionLevel *roughened(SubdivisionLevel *level)
{
    std::mt19937 random(7);
    for (int v = 0; v < level->VertexCount(); ++v)
        level->SetVertexPosition(v, level->VertexPosition(v) + randomVector(random, 0.07f));
    level->RecomputeNormals(false);
    level->Update(true, 0);
    return level;
}

SubdivisionLevel *mixedPolygons()
{
    SubdivisionLevel *level = gridOfTriangles(3, 3);
    for (int face : {1, 2, 9})
        level->SetFakeTriangle(face, true);
    level->Update(true, 0);
    return level;
}

// Every face has its own texture coordinates: a seam along every edge.
SubdivisionLevel *withSeams(SubdivisionLevel *level)
{
    const int corners = level->CornersPerFace();
    level->SetUVCount(level->FaceCount() * corners);
    for (int face = 0; face < level->FaceCount(); ++face) {
        for (int corner = 0; corner < corners; ++corner) {
            const int uv = face * corners + corner;
            level->SetTextureCoordinate(uv, {float(face) / 64.0f, float(corner) / 8.0f});
            level->SetUVIndex(face, corner, uv);
        }
    }
    return level;
}

struct Kind
{
    const char *name;
    Maker make;
};

const Kind Kinds[] = {
    {"triangles",
     [] {
         return roughened(sphere(5, 7));
     }},
    {"quads",
     [] {
         return roughened(cube());
     }},
    {"mixed",
     [] {
         return roughened(mixedPolygons());
     }},
    {"manyCorners",
     [] {
         return roughened(polygonOfFakes(300));
     }},
    {"trianglesWithSeams",
     [] {
         return withSeams(roughened(sphere(5, 7)));
     }},
    {"quadsWithSeams",
     [] {
         return withSeams(roughened(cube()));
     }},
    {"tiny",
     [] {
         SubdivisionLevel *level = cube(1e-6f);
         level->RecomputeNormals(false);
         return level;
     }},
};

struct Format
{
    const char *suffix;
    bool keepsPolygons;
    bool keepsUVs;
};

const Format Formats[] = {
    {"obj", true, true},  {"ply", true, true},   {"stl", false, false},
    {"glb", false, true}, {"gltf", false, true},
};

class RoundTrip : public FileTest, public testing::WithParamInterface<std::tuple<Kind, Format>>
{};

class MeshFile : public FileTest
{};

QVector<UV> uvsByFanCorner(const Mesh &mesh)
{
    QVector<UV> result;
    const PolygonList polygons = polygonsOf(mesh);
    for (int p = 0; p < polygons.Count(); ++p) {
        const int *uv = polygons.uvCorners.constData() + polygons.firstCorner[p];
        for (int i = 2; i < polygons.CornerCount(p); ++i) {
            for (int corner : {0, i - 1, i})
                result.append(mesh.TextureCoordinate(uv[corner]));
        }
    }
    return result;
}

void expectSameUVs(const Mesh &a, const Mesh &b)
{
    ASSERT_TRUE(a.HasUVs());
    ASSERT_TRUE(b.HasUVs());
    const QVector<UV> expected = uvsByFanCorner(a);
    const QVector<UV> read = uvsByFanCorner(b);
    ASSERT_EQ(read.size(), expected.size());
    for (int i = 0; i < read.size(); ++i) {
        EXPECT_NEAR(read[i].u, expected[i].u, 1e-6f);
        EXPECT_NEAR(read[i].v, expected[i].v, 1e-6f);
    }
}

QString withSuffix(const Format &format)
{
    return QStringLiteral("shape.") + QString::fromLatin1(format.suffix);
}

} // namespace

TEST_P(RoundTrip, readingBackGivesTheSameFaces)
{
    const auto [kind, format] = GetParam();
    Geometry shape;
    shape.SetName(QStringLiteral("Body"));
    shape.AddLevel(kind.make());
    const Mesh &old = *shape.CurrentLevel();
    write({&shape}, path(withSuffix(format)));
    EXPECT_EQ(filesInFolder(), QStringList(withSuffix(format)));

    const Geometry *geometry = mesh(path(withSuffix(format)));
    const Mesh &read = *geometry->CurrentLevel();
    EXPECT_EQ(geometry->Name(), QStringLiteral("shape"));
    EXPECT_EQ(geometry->LevelCount(), 1);
    EXPECT_EQ(read.VertexCount(), old.VertexCount());
    if (format.keepsPolygons) {
        EXPECT_EQ(read.IsQuads(), old.IsQuads());
        EXPECT_TRUE(samePlaces(polygonPlaces(read), polygonPlaces(old)));
    }
    EXPECT_TRUE(samePlaces(fanPlaces(read), fanPlaces(old)));
    if (old.HasUVs() && format.keepsUVs)
        expectSameUVs(old, read);
    else
        EXPECT_FALSE(read.HasUVs());
    EXPECT_EQ(read.Bounds().Diagonal(), old.Bounds().Diagonal());
    EXPECT_NEAR(read.VertexNormal(0).Length(), 1.0f, 1e-5f);
}

TEST_P(RoundTrip, writingTwiceGivesTheSameBytes)
{
    const auto [kind, format] = GetParam();
    Geometry shape;
    shape.AddLevel(kind.make());
    write({&shape}, path(QStringLiteral("a.") + withSuffix(format)));
    write({&shape}, path(QStringLiteral("b.") + withSuffix(format)));
    EXPECT_EQ(bytesOf(path(QStringLiteral("a.") + withSuffix(format))),
              bytesOf(path(QStringLiteral("b.") + withSuffix(format))));
}

INSTANTIATE_TEST_SUITE_P(KindsAndFormats, RoundTrip,
                         testing::Combine(testing::ValuesIn(Kinds), testing::ValuesIn(Formats)),
                         [](const testing::TestParamInfo<RoundTrip::ParamType> &test) {
                             return std::string(std::get<0>(test.param).name) + "_"
                                    + std::get<1>(test.param).suffix;
                         });

TEST_F(MeshFile, numbersOfVerticesSurviveObjAndPly)
{
    Geometry shape;
    shape.AddLevel(roughened(sphere(6, 9)));
    for (const char *name : {"a.obj", "a.ply"}) {
        write({&shape}, path(QString::fromLatin1(name)));
        const Mesh &read = *mesh(path(QString::fromLatin1(name)))->CurrentLevel();
        EXPECT_EQ(read.Corners(), shape.CurrentLevel()->Corners());
        EXPECT_EQ(read.Positions(), shape.CurrentLevel()->Positions());
    }
}

TEST_F(MeshFile, anyFloatSurvivesEveryFormat)
{
    std::mt19937 random(testSeed());
    Geometry shape;
    shape.AddLevel(randomMesh(Topology::Triangles, 300, 300, random));
    for (int v = 0; v < 300; ++v) {
        const float scale = std::pow(10.0f, randomBetween(random, -12.0f, 12.0f));
        shape.CurrentLevel()->SetVertexPosition(v, randomVector(random, scale));
    }
    for (const Format &format : Formats) {
        write({&shape}, path(withSuffix(format)));
        const Geometry *read = mesh(path(withSuffix(format)));
        EXPECT_TRUE(samePlaces(fanPlaces(*read->CurrentLevel()), fanPlaces(*shape.CurrentLevel())))
            << format.suffix;
    }
}

TEST_F(MeshFile, smallestAndLargestFloatsSurviveObj)
{
    using Limits = std::numeric_limits<float>;
    Geometry shape;
    shape.AddLevel(singleTriangle());
    shape.CurrentLevel()->SetVertexPosition(0,
                                            Vector(Limits::denorm_min(), -1e-40f, Limits::min()));
    shape.CurrentLevel()->SetVertexPosition(1,
                                            Vector(Limits::max(), Limits::lowest(), 16777217.0f));
    write({&shape}, path(QStringLiteral("a.obj")));
    EXPECT_EQ(mesh(path(QStringLiteral("a.obj")))->CurrentLevel()->Positions(),
              shape.CurrentLevel()->Positions());
}

TEST_F(MeshFile, looseVerticesAreNotWritten)
{
    Geometry shape;
    SubdivisionLevel *level = tetrahedron();
    level->SetVertexCount(6);
    level->SetVertexPosition(4, Vector(100, 0, 0));
    shape.AddLevel(level);
    for (const Format &format : Formats) {
        write({&shape}, path(withSuffix(format)));
        EXPECT_EQ(mesh(path(withSuffix(format)))->CurrentLevel()->VertexCount(), 4)
            << format.suffix;
        EXPECT_FALSE(bytesOf(path(withSuffix(format))).contains("100 0 0"));
    }
}

TEST_F(MeshFile, worldPositionsAreWritten)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 10; ++round) {
        Geometry shape;
        shape.AddLevel(roughened(cube()));
        shape.Placement()->SetWorldMatrix(randomPlacement(random));
        for (const Format &format : Formats) {
            write({&shape}, path(withSuffix(format)));
            const Geometry *read = mesh(path(withSuffix(format)));
            EXPECT_TRUE(
                samePlaces(fanPlaces(*read->CurrentLevel()), fanPlaces(*shape.CurrentLevel())));
        }
    }
}

TEST_F(MeshFile, mirroredMeshKeepsItsOutside)
{
    Geometry shape;
    shape.AddLevel(sphere(8, 8));
    shape.Placement()->SetWorldMatrix(Matrix::Scaling({-1, 1, 1}));
    for (const Format &format : Formats) {
        write({&shape}, path(withSuffix(format)));
        const Mesh &read = *mesh(path(withSuffix(format)))->CurrentLevel();
        for (int face = 0; face < read.FaceCount(); ++face)
            EXPECT_GT(Dot(read.FaceNormal(face), read.TriangleVertexPosition(face, 0)), 0.0f);
    }
}

TEST_F(MeshFile, mirroringNodeOfAGltfFileTurnsFacesRound)
{
    Geometry shape;
    shape.AddLevel(sphere(8, 8));
    write({&shape}, path(QStringLiteral("a.gltf")));
    QByteArray text = bytesOf(path(QStringLiteral("a.gltf")));
    text.replace("\"nodes\":[{", "\"nodes\":[{\"scale\":[-2,2,2],\"translation\":[10,0,0],");
    const Mesh &read = *mesh(file(QStringLiteral("b.gltf"), text))->CurrentLevel();
    EXPECT_NEAR(read.Bounds().Center().x, 10.0f, 1e-5f);
    EXPECT_NEAR(read.Bounds().Size().x, 4.0f, 1e-5f);
    for (int face = 0; face < read.FaceCount(); ++face) {
        const Vector outwards = read.TriangleVertexPosition(face, 0) - Vector(10, 0, 0);
        EXPECT_GT(Dot(read.FaceNormal(face), outwards), 0.0f);
    }
}

TEST_F(MeshFile, severalMeshesAreOneAfterReading)
{
    Geometry first;
    Geometry second;
    Geometry empty;
    first.AddLevel(roughened(cube()));
    second.AddLevel(roughened(sphere(4, 5)));
    second.Placement()->SetWorldMatrix(Matrix::Translation({5, 0, 0}));
    const QVector<PlaceList> expected =
        fanPlaces(*first.CurrentLevel()) + fanPlaces(*second.CurrentLevel());
    for (const Format &format : Formats) {
        write({&first, &empty, &second}, path(withSuffix(format)));
        const Mesh &read = *mesh(path(withSuffix(format)))->CurrentLevel();
        EXPECT_TRUE(samePlaces(fanPlaces(read), expected)) << format.suffix;
    }
}

TEST_F(MeshFile, uvsOfOneOfSeveralMeshesStayWithItInObjAndGltf)
{
    Geometry plain;
    Geometry seamed;
    plain.AddLevel(roughened(cube()));
    seamed.AddLevel(withSeams(roughened(sphere(4, 5))));
    for (const char *name : {"a.obj", "a.glb"}) {
        write({&plain, &seamed}, path(QString::fromLatin1(name)));
        const Mesh &read = *mesh(path(QString::fromLatin1(name)))->CurrentLevel();
        EXPECT_EQ(read.UVIndex(0, 0), -1) << name;
        EXPECT_GE(read.UVIndex(read.FaceCount() - 1, 0), 0) << name;
    }
}

TEST_F(MeshFile, repeatedNamesAreNumbered)
{
    Geometry geometries[5];
    const char *names[] = {"Body", "Body", "Body-2", "Body", ""};
    QVector<const Geometry *> all;
    for (int i = 0; i < 5; ++i) {
        geometries[i].SetName(QString::fromLatin1(names[i]));
        geometries[i].AddLevel(cube());
        all.append(&geometries[i]);
    }
    const QList<QByteArray> expected = {"Body", "Body-3", "Body-2", "Body-4", "Mesh"};
    write(all, path(QStringLiteral("a.obj")));
    QList<QByteArray> objects;
    for (const QByteArray &line : bytesOf(path(QStringLiteral("a.obj"))).split('\n')) {
        if (line.startsWith("o "))
            objects.append(line.mid(2));
    }
    EXPECT_EQ(objects, expected);
    write(all, path(QStringLiteral("a.glb")));
    for (const QByteArray &name : expected)
        EXPECT_EQ(bytesOf(path(QStringLiteral("a.glb"))).count("\"name\":\"" + name + "\""), 2);
}

TEST_F(MeshFile, normalsAreWrittenWhereAllAreKnown)
{
    Geometry known;
    Geometry unknown;
    known.AddLevel(cube());
    SubdivisionLevel *level = cube();
    level->SetVertexNormal(3, Vector());
    unknown.AddLevel(level);
    write({&known}, path(QStringLiteral("known.obj")));
    write({&unknown}, path(QStringLiteral("unknown.obj")));
    EXPECT_EQ(bytesOf(path(QStringLiteral("known.obj"))).count("\nvn "), 8);
    EXPECT_EQ(bytesOf(path(QStringLiteral("unknown.obj"))).count("\nvn "), 0);
    EXPECT_TRUE(bytesOf(path(QStringLiteral("unknown.obj"))).contains("\nf 1 "));
}

TEST_F(MeshFile, cornersOfAnStlAreJoinedByPlace)
{
    Geometry shape;
    shape.AddLevel(cube());
    write({&shape}, path(QStringLiteral("a.stl")));
    const Mesh &read = *mesh(path(QStringLiteral("a.stl")))->CurrentLevel();
    EXPECT_EQ(read.VertexCount(), 8);
    EXPECT_EQ(read.FaceCount(), 12);
    EXPECT_EQ(read.Edges().size(), 18);
}

TEST_F(MeshFile, zeroOfEitherSignIsOnePlace)
{
    Geometry positive;
    Geometry negative;
    positive.AddLevel(singleQuad());
    negative.AddLevel(singleQuad());
    for (int v = 0; v < 4; ++v) {
        const Vector place = negative.CurrentLevel()->VertexPosition(v);
        negative.CurrentLevel()->SetVertexPosition(v, Vector(place.x, place.y, -0.0f));
    }
    write({&positive, &negative}, path(QStringLiteral("a.stl")));
    EXPECT_EQ(mesh(path(QStringLiteral("a.stl")))->CurrentLevel()->VertexCount(), 4);
}

TEST_F(MeshFile, suffixInCapitalsMeansTheSame)
{
    Geometry shape;
    shape.AddLevel(cube());
    write({&shape}, path(QStringLiteral("A.OBJ")));
    EXPECT_TRUE(mesh(path(QStringLiteral("A.OBJ")))->CurrentLevel()->IsQuads());
}

TEST_F(MeshFile, realModelSurvivesEveryFormat)
{
    for (const char *name : {"spot_quads.obj", "fandisk.obj"}) {
        const QString model = modelFile(QString::fromLatin1(name));
        if (model.isEmpty())
            GTEST_SKIP() << "The folder of real models is not at hand.";
        const Geometry *original = mesh(model);
        const Mesh &old = *original->CurrentLevel();
        for (const Format &format : Formats) {
            write({original}, path(withSuffix(format)));
            const Mesh &read = *mesh(path(withSuffix(format)))->CurrentLevel();
            EXPECT_EQ(read.VertexCount(), old.VertexCount());
            EXPECT_TRUE(samePlaces(fanPlaces(read), fanPlaces(old)))
                << name << " " << format.suffix;
        }
    }
}
