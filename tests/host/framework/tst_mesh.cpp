// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QScopedPointer>

#include <climits>
#include <cmath>
#include <random>

using orvane::Dot;
using orvane::Mesh;
using orvane::Stream;
using orvane::SubdivisionLevel;
using orvane::Topology;
using orvane::UV;
using orvane::Vector;

namespace {

using MeshPointer = QScopedPointer<SubdivisionLevel>;

QByteArray written(Mesh *mesh)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Stream stream(&buffer, Stream::Writing);
    mesh->Serialize(stream);
    EXPECT_TRUE(stream.IsOk());
    return buffer.data();
}

// Did the stream hold out to its end?
bool read(Mesh *mesh, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Reading);
    mesh->Serialize(stream);
    return stream.IsOk() && stream.BytesLeft() == 0;
}

// Everything that walks over a mesh; sanitizers watch.
void useAll(Mesh *mesh)
{
    mesh->RecomputeNormals(false);
    mesh->Update(true, 0);
    for (int face = 0; face < mesh->FaceCount(); ++face) {
        for (int corner = 0; corner < mesh->CornersPerFace(); ++corner) {
            mesh->TriangleVertexPosition(face, corner);
            mesh->QuadVertexPosition(face, corner);
            mesh->TextureCoordinate(mesh->UVIndex(face, corner));
        }
    }
}

} // namespace

TEST(Mesh, startsEmpty)
{
    SubdivisionLevel mesh;
    EXPECT_EQ(mesh.VertexCount(), 0);
    EXPECT_EQ(mesh.FaceCount(), 0);
    EXPECT_EQ(mesh.UVCount(), 0);
    EXPECT_EQ(mesh.Holder(), nullptr);
    EXPECT_FALSE(mesh.IsChanged());
    EXPECT_TRUE(mesh.Bounds().IsEmpty());
    useAll(&mesh);
    EXPECT_EQ(mesh.Polygons().Count(), 0);
    EXPECT_TRUE(mesh.Edges().isEmpty());
}

TEST(Mesh, answersZeroOutOfRange)
{
    const MeshPointer mesh(singleTriangle());
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_EQ(mesh->VertexPosition(index), Vector()) << index;
        EXPECT_EQ(mesh->VertexNormal(index), Vector()) << index;
        EXPECT_EQ(mesh->FaceNormal(index), Vector()) << index;
        EXPECT_EQ(mesh->WorldVertexPosition(index), Vector()) << index;
        EXPECT_EQ(mesh->TriangleVertexPosition(index, 0), Vector()) << index;
        EXPECT_EQ(mesh->TriangleVertexPosition(0, index), Vector()) << index;
        EXPECT_EQ(mesh->TextureCoordinate(index).u, 0.0f) << index;
    }
    EXPECT_EQ(mesh->QuadVertexPosition(0, 1), Vector()) << "its faces are no quads";
}

TEST(Mesh, logsAndIgnoresWhatIsSetOutOfRange)
{
    const MeshPointer mesh(singleTriangle());
    const QByteArray before = written(mesh.data());
    LogCatcher log;
    for (const int index : {-1, 3, INT_MIN, INT_MAX}) {
        mesh->SetVertexPosition(index, {9, 9, 9});
        mesh->SetVertexNormal(index, {9, 9, 9});
        mesh->SetTextureCoordinate(index, {9, 9});
    }
    EXPECT_EQ(log.count(), 12);
    EXPECT_EQ(written(mesh.data()), before);
}

TEST(Mesh, answersTheCornersOfItsFacesInTheWorld)
{
    orvane::Geometry geometry;
    geometry.Placement()->SetWorldMatrix(orvane::Matrix::Translation({10, 0, 0}));
    geometry.AddLevel(singleTriangle(2.0f));
    geometry.AddLevel(singleQuad(2.0f));
    EXPECT_EQ(geometry.Level(0)->TriangleVertexPosition(0, 1), Vector(12, 0, 0));
    EXPECT_EQ(geometry.Level(1)->QuadVertexPosition(0, 2), Vector(12, 2, 0));
    EXPECT_EQ(geometry.Level(0)->VertexPosition(1), Vector(2, 0, 0));
    EXPECT_EQ(geometry.Level(0)->WorldVertexPosition(1), Vector(12, 0, 0));
    EXPECT_EQ(geometry.Level(0)->Holder(), &geometry);
}

TEST(Mesh, hasOutwardNormalsOnClosedShapes)
{
    for (SubdivisionLevel *shape : {cube(2.0f), tetrahedron(), sphere(8, 12)}) {
        const MeshPointer mesh(shape);
        Vector inside;
        for (const Vector &position : mesh->Positions())
            inside += position / float(mesh->VertexCount());
        for (int face = 0; face < mesh->FaceCount(); ++face) {
            const Vector outward = mesh->VertexPosition(mesh->VertexIndex(face, 0)) - inside;
            EXPECT_GT(Dot(mesh->FaceNormal(face), outward), 0.0f) << "face " << face;
            EXPECT_NEAR(mesh->FaceNormal(face).Length(), 1.0f, 1e-6f) << "face " << face;
        }
    }
}

TEST(Mesh, pointsTheVertexNormalsOfASphereAwayFromItsCentre)
{
    const MeshPointer mesh(sphere(24, 48));
    for (int v = 0; v < mesh->VertexCount(); ++v)
        EXPECT_GT(Dot(mesh->VertexNormal(v), mesh->VertexPosition(v)), 0.999f) << "vertex " << v;
}

TEST(Mesh, weighsVertexNormalsByAngleAndNotByTheCutOfAFace)
{
    // One face of the cube cut in two must not pull the normal of its corner.
    const float third = 1.0f / std::sqrt(3.0f);
    const MeshPointer mesh(meshOf(Topology::Triangles,
                                  {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 1, 1}},
                                  {0, 2, 1, 0, 1, 3, 0, 3, 4, 0, 4, 2}));
    const Vector normal = mesh->VertexNormal(0);
    EXPECT_NEAR(normal.x, -third, 1e-6f);
    EXPECT_NEAR(normal.y, -third, 1e-6f);
    EXPECT_NEAR(normal.z, -third, 1e-6f);
}

TEST(Mesh, keepsVertexNormalsThatWereSetWhenAskedTo)
{
    const MeshPointer mesh(singleTriangle());
    mesh->SetVertexNormal(0, {1, 0, 0});
    mesh->RecomputeNormals(true);
    EXPECT_EQ(mesh->VertexNormal(0), Vector(1, 0, 0));
    mesh->RecomputeNormals(false);
    EXPECT_EQ(mesh->VertexNormal(0), Vector(0, 0, 1));
}

TEST(Mesh, hasZeroNormalsOnAFaceWithoutArea)
{
    const MeshPointer mesh(
        meshOf(Topology::Triangles, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, {0, 1, 2}));
    EXPECT_EQ(mesh->FaceNormal(0), Vector());
    EXPECT_EQ(mesh->VertexNormal(1), Vector());
    EXPECT_EQ(mesh->WorldVertexNormal(1), Vector());
}

TEST(Mesh, bringsItsBoundsUpToDateWhenToldTo)
{
    const MeshPointer mesh(singleTriangle());
    mesh->SetVertexPosition(1, {5, 0, 0});
    EXPECT_EQ(mesh->Bounds().maximum.x, 1.0f);
    mesh->Update(false, 0);
    EXPECT_EQ(mesh->Bounds().maximum.x, 5.0f);
}

TEST(Mesh, bringsItsPolygonsUpToDateOnlyWithItsTopology)
{
    const MeshPointer mesh(gridOfTriangles(1, 1));
    mesh->SetFakeTriangle(1, true);
    mesh->Update(false, 0);
    EXPECT_EQ(mesh->Polygons().Count(), 2);
    EXPECT_EQ(mesh->Edges().size(), 5);
    mesh->Update(true, 0);
    EXPECT_EQ(mesh->Polygons().Count(), 1);
    EXPECT_EQ(mesh->Edges().size(), 4);
}

TEST(Mesh, sumsTheNormalsOfAVertexInTheOrderOfItsFacesOnAnyNumberOfThreads)
{
    std::mt19937 random(testSeed());
    for (Topology::FaceType type : {Topology::Triangles, Topology::Quads}) {
        const MeshPointer mesh(type == Topology::Quads ? gridOfQuads(300, 300)
                                                       : gridOfTriangles(250, 250));
        for (int v = 0; v < mesh->VertexCount(); ++v)
            mesh->SetVertexPosition(v, mesh->VertexPosition(v)
                                           + Vector(0, 0, randomBetween(random, 0, 3)));
        mesh->RecomputeNormals(false);
        const int corners = mesh->CornersPerFace();
        QVector<Vector> sums(mesh->VertexCount());
        for (int face = 0; face < mesh->FaceCount(); ++face) {
            for (int i = 0; i < corners; ++i) {
                const auto at = [&](int corner) {
                    return mesh->VertexPosition(mesh->VertexIndex(face, corner % corners));
                };
                const Vector a = at(i + 1) - at(i);
                const Vector b = at(i + corners - 1) - at(i);
                const float angle = std::atan2((a & b).Length(), Dot(a, b));
                sums[mesh->VertexIndex(face, i)] += mesh->FaceNormal(face) * angle;
            }
        }
        for (int v = 0; v < sums.size(); ++v)
            ASSERT_EQ(mesh->VertexNormal(v), sums[v].Normalize()) << v;
    }
}

TEST(Mesh, hasTheEdgesOfItsLastUpdateWheneverTheyAreAskedFor)
{
    const MeshPointer mesh(gridOfTriangles(2, 2));
    mesh->Update(true, 0);
    mesh->SetVertexCount(4);
    mesh->SetFaceCount(1);
    EXPECT_EQ(mesh->Edges().size(), 16);
    mesh->Update(true, 0);
    EXPECT_EQ(mesh->Edges().size(), edgesOf(polygonsOf(*mesh), 4).size());
}

TEST(Mesh, noticesWhateverChangesItsPolygonsOrEdges)
{
    const MeshPointer mesh(gridOfTriangles(1, 1));
    const auto expectChange = [&mesh](const char *change) {
        EXPECT_FALSE(mesh->IsUpdated()) << change;
        mesh->Update(false, 0);
        EXPECT_FALSE(mesh->IsUpdated()) << change;
        mesh->Update(true, 0);
        EXPECT_TRUE(mesh->IsUpdated()) << change;
        const orvane::PolygonList polygons = polygonsOf(*mesh);
        EXPECT_EQ(mesh->Polygons().corners, polygons.corners) << change;
        EXPECT_EQ(mesh->Polygons().uvCorners, polygons.uvCorners) << change;
        EXPECT_EQ(mesh->Polygons().firstCorner, polygons.firstCorner) << change;
        EXPECT_EQ(mesh->Polygons().firstFace, polygons.firstFace) << change;
        EXPECT_EQ(mesh->Edges().size(), edgesOf(polygons, mesh->VertexCount()).size()) << change;
    };
    mesh->Update(true, 0);
    mesh->SetVertexPosition(0, {1, 2, 3});
    EXPECT_TRUE(mesh->IsUpdated());
    mesh->SetTriangleIndex(1, 2, 0);
    expectChange("a corner");
    mesh->SetFakeTriangle(1, true);
    expectChange("a mark");
    mesh->SetUVCount(1);
    expectChange("texture coordinates");
    mesh->SetUVIndex(0, 1, 0);
    expectChange("the texture coordinate of a corner");
    mesh->SetVertexCount(2);
    expectChange("the vertices");
    mesh->SetFaceCount(1);
    expectChange("the faces");
    ASSERT_TRUE(read(mesh.data(), written(mesh.data())));
    EXPECT_TRUE(mesh->IsUpdated());
}

TEST(Mesh, keepsAMarkOfItsOwnChanges)
{
    const MeshPointer mesh(singleTriangle());
    mesh->SetChanged(true);
    EXPECT_TRUE(mesh->IsChanged());
    mesh->SetChanged(false);
    EXPECT_FALSE(mesh->IsChanged());
}

TEST(Mesh, outlivesTheLossOfItsVertices)
{
    for (SubdivisionLevel *shape : {gridOfQuads(4, 4), gridOfTriangles(4, 4), polygonOfFakes(7)}) {
        const MeshPointer mesh(shape);
        mesh->SetVertexCount(3);
        useAll(mesh.data());
        EXPECT_EQ(mesh->VertexCount(), 3);
        for (const orvane::MeshEdge &edge : mesh->Edges())
            EXPECT_LT(edge.b, 3);
        mesh->SetVertexCount(0);
        useAll(mesh.data());
        EXPECT_TRUE(mesh->Edges().isEmpty());
        mesh->SetVertexCount(-1);
        EXPECT_EQ(mesh->VertexCount(), 0);
    }
}

TEST(Mesh, mayHaveItsFacesCountedBeforeItsVertices)
{
    SubdivisionLevel mesh(Topology::Quads);
    mesh.SetFaceCount(2);
    useAll(&mesh);
    mesh.SetVertexCount(4);
    mesh.SetFakeTriangleCount(0);
    mesh.SetUVCount(0);
    for (int corner = 0; corner < 4; ++corner)
        mesh.SetQuadIndex(1, corner, corner);
    EXPECT_EQ(mesh.Corners(), QVector<int>({0, 0, 0, 0, 0, 1, 2, 3}));
}

TEST(Mesh, isReadAsItWasWritten)
{
    std::mt19937 random(testSeed());
    for (SubdivisionLevel *shape :
         {gridOfQuads(3, 2), gridOfTriangles(2, 2), polygonOfFakes(6), sphere(5, 7),
          randomMesh(Topology::Quads, 30, 50, random), new SubdivisionLevel(Topology::Quads)}) {
        const MeshPointer mesh(shape);
        mesh->SetName(QStringLiteral("shape"));
        mesh->SetUVCount(2);
        mesh->SetTextureCoordinate(1, UV{0.25f, 0.75f});
        mesh->Update(true, 0);
        if (mesh->FaceCount() > 0)
            mesh->SetUVIndex(0, 2, 1);
        const QByteArray bytes = written(mesh.data());

        SubdivisionLevel copy(mesh->IsQuads() ? Topology::Triangles : Topology::Quads);
        ASSERT_TRUE(read(&copy, bytes));
        EXPECT_EQ(written(&copy), bytes);
        EXPECT_EQ(copy.Name(), QStringLiteral("shape"));
        EXPECT_EQ(copy.Type(), mesh->Type());
        EXPECT_EQ(copy.Positions(), mesh->Positions());
        EXPECT_EQ(copy.Corners(), mesh->Corners());
        EXPECT_EQ(copy.Polygons().corners, mesh->Polygons().corners);
        EXPECT_EQ(copy.Polygons().firstCorner, mesh->Polygons().firstCorner);
        EXPECT_EQ(copy.Edges().size(), mesh->Edges().size());
        EXPECT_EQ(copy.Bounds().maximum, mesh->Bounds().maximum);
        EXPECT_EQ(copy.TextureCoordinate(1).v, 0.75f);
        EXPECT_EQ(copy.UVIndex(0, 2), mesh->UVIndex(0, 2));
        for (int face = 0; face < mesh->FaceCount(); ++face) {
            EXPECT_EQ(copy.IsFakeTriangle(face), mesh->IsFakeTriangle(face));
            EXPECT_EQ(copy.FaceNormal(face), mesh->FaceNormal(face));
        }
    }
}

TEST(Mesh, isCopiedWithAllItHas)
{
    const MeshPointer mesh(polygonOfFakes(5));
    const QScopedPointer<orvane::Node> copy(mesh->Duplicate());
    auto *level = dynamic_cast<SubdivisionLevel *>(copy.data());
    ASSERT_NE(level, nullptr);
    EXPECT_EQ(written(level), written(mesh.data()));
}

TEST(Mesh, survivesBytesThatStopShort)
{
    const MeshPointer mesh(polygonOfFakes(6));
    const QByteArray bytes = written(mesh.data());
    for (int size = 0; size < bytes.size(); ++size) {
        SubdivisionLevel copy;
        EXPECT_FALSE(read(&copy, bytes.left(size))) << size;
        useAll(&copy);
    }
}

TEST(Mesh, survivesDamagedBytes)
{
    std::mt19937 random(testSeed());
    LogCatcher quiet;
    const MeshPointer triangles(polygonOfFakes(6));
    const MeshPointer quads(gridOfQuads(3, 3));
    quads->SetUVCount(4);
    quads->SetUVIndex(0, 0, 3);
    for (Mesh *mesh : {triangles.data(), quads.data()}) {
        const QByteArray bytes = written(mesh);
        for (int round = 0; round < 5000; ++round) {
            QByteArray damaged = bytes;
            for (unsigned hits = 1 + random() % 4; hits > 0; --hits)
                damaged[int(random() % unsigned(damaged.size()))] = char(random());
            SubdivisionLevel copy;
            read(&copy, damaged);
            useAll(&copy);
            for (int corner : copy.Corners())
                ASSERT_TRUE(corner >= 0 && corner < copy.VertexCount()) << "round " << round;
        }
    }
}

TEST(Mesh, readsNoFakeTrianglesAmongQuads)
{
    const MeshPointer mesh(gridOfQuads(2, 1));
    mesh->SetFakeTriangleCount(1);
    QByteArray bytes = written(mesh.data());
    const QVector<int> &corners = mesh->Corners();
    const int size = corners.size() * int(sizeof(int));
    const QByteArray faces(reinterpret_cast<const char *>(corners.constData()), size);
    const int marks = bytes.indexOf(faces) + size + int(sizeof(int)); // after their own count
    bytes[marks + 1] = 1;
    SubdivisionLevel copy;
    ASSERT_TRUE(read(&copy, bytes));
    EXPECT_FALSE(copy.IsFakeTriangle(1));
    EXPECT_EQ(copy.Polygons().Count(), 2);
}

TEST(Mesh, dropsFacesThatDoNotFitItsVertices)
{
    const MeshPointer mesh(singleTriangle());
    QByteArray bytes = written(mesh.data());
    const int corners[3] = {0, 1, 2};
    const int at = bytes.indexOf(QByteArray(reinterpret_cast<const char *>(corners), 12));
    ASSERT_GT(at, 0);
    bytes[at] = 3;
    SubdivisionLevel copy;
    LogCatcher log;
    read(&copy, bytes);
    EXPECT_EQ(log.count(), 1);
    EXPECT_EQ(copy.FaceCount(), 0);
    EXPECT_EQ(copy.VertexCount(), 3);
}
