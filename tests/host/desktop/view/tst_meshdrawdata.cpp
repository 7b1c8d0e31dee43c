// SPDX-License-Identifier: MIT
#include "host/desktop/view/meshdrawdata.h"

#include "host/meshchecker/meshchecker.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <QElapsedTimer>
#include <QScopedPointer>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <set>

using orvane::FaultDrawData;
using orvane::FlatDrawData;
using orvane::Mesh;
using orvane::MeshChecker;
using orvane::MeshDrawData;
using orvane::SubdivisionLevel;
using orvane::Topology;
using orvane::Vector;

namespace {

using Owned = QScopedPointer<SubdivisionLevel>;
using Triangle = std::array<int, 3>;
using Edge = std::pair<int, int>;

const int AllParts =
    MeshDrawData::PositionsPart | MeshDrawData::NormalsPart | MeshDrawData::FacesPart;

// Random triangles, some of them continuing the polygon before them as a fan.
SubdivisionLevel *randomPolygons(std::mt19937 &random)
{
    const int vertices = 60;
    auto *mesh = new SubdivisionLevel(Topology::Triangles); // the caller's
    mesh->SetVertexCount(vertices);
    for (int v = 0; v < vertices; ++v)
        mesh->SetVertexPosition(v, randomVector(random));
    QVector<int> corners;
    QVector<bool> fakes;
    for (int polygon = 0; polygon < 40; ++polygon) {
        const int count = 3 + int(random() % 5);
        const int first = int(random() % unsigned(vertices));
        for (int i = 2; i < count; ++i) {
            corners << first << (first + i - 1) % vertices << (first + i) % vertices;
            fakes << (i > 2);
        }
    }
    mesh->SetFaceCount(fakes.size());
    for (int i = 0; i < corners.size(); ++i)
        mesh->SetTriangleIndex(i / 3, i % 3, corners[i]);
    for (int face = 0; face < fakes.size(); ++face) {
        if (fakes[face])
            mesh->SetFakeTriangle(face, true);
    }
    mesh->RecomputeNormals(false);
    mesh->Update(true, 0);
    return mesh;
}

SubdivisionLevel *randomOfKind(int kind, std::mt19937 &random)
{
    if (kind == 0)
        return randomMesh(Topology::Triangles, 40, 60, random);
    if (kind == 1)
        return randomMesh(Topology::Quads, 40, 60, random);
    return randomPolygons(random);
}

// The polygons, told from the faces and the marks alone.
QVector<QVector<int>> plainPolygons(const Mesh &mesh)
{
    QVector<QVector<int>> polygons;
    for (int face = 0; face < mesh.FaceCount(); ++face) {
        if (mesh.IsFakeTriangle(face)) {
            polygons.last() << mesh.VertexIndex(face, 2);
            continue;
        }
        polygons.append(QVector<int>());
        for (int corner = 0; corner < mesh.CornersPerFace(); ++corner)
            polygons.last() << mesh.VertexIndex(face, corner);
    }
    return polygons;
}

std::multiset<Triangle> trianglesIn(const QVector<int> &indices, int from, int to)
{
    std::multiset<Triangle> triangles;
    for (int i = from; i + 2 < to; i += 3)
        triangles.insert({indices[i], indices[i + 1], indices[i + 2]});
    return triangles;
}

std::multiset<Triangle> fansOf(const QVector<QVector<int>> &polygons, int fewest, int most)
{
    std::multiset<Triangle> triangles;
    for (const QVector<int> &polygon : polygons) {
        for (int i = 2; polygon.size() >= fewest && polygon.size() <= most && i < polygon.size();
             ++i)
            triangles.insert({polygon[0], polygon[i - 1], polygon[i]});
    }
    return triangles;
}

std::multiset<Edge> edgesIn(const QVector<int> &indices)
{
    std::multiset<Edge> edges;
    for (int i = 0; i + 1 < indices.size(); i += 2)
        edges.insert(std::minmax(indices[i], indices[i + 1]));
    return edges;
}

// Sides of the polygons; with onlySingle those that one polygon side alone runs along.
std::multiset<Edge> sidesOf(const QVector<QVector<int>> &polygons, bool onlySingle)
{
    std::multiset<Edge> sides;
    for (const QVector<int> &polygon : polygons) {
        for (int i = 0; i < polygon.size(); ++i)
            sides.insert(std::minmax(polygon[i], polygon[(i + 1) % polygon.size()]));
    }
    std::multiset<Edge> edges;
    for (auto side = sides.begin(); side != sides.end(); side = sides.upper_bound(*side)) {
        if (side->first != side->second && !(onlySingle && sides.count(*side) > 1))
            edges.insert(*side);
    }
    return edges;
}

} // namespace

TEST(MeshDrawData, trianglesAndEdgesAgreeWithPlainWalks)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 90; ++round) {
        const Owned mesh(randomOfKind(round % 3, random));
        const QVector<QVector<int>> polygons = plainPolygons(*mesh);
        MeshDrawData data;
        EXPECT_EQ(data.Update(*mesh), AllParts);
        EXPECT_EQ(data.Positions(), mesh->Positions());
        EXPECT_EQ(trianglesIn(data.Triangles(), 0, data.Triangles().size()),
                  fansOf(polygons, 3, 99));
        EXPECT_EQ(edgesIn(data.Wireframe()), sidesOf(polygons, false));
        EXPECT_EQ(edgesIn(data.Boundary()), sidesOf(polygons, true));
    }
}

TEST(MeshDrawData, aPolygonOfFakesHasNoInnerEdges)
{
    const Owned mesh(polygonOfFakes(7));
    MeshDrawData data;
    data.Update(*mesh);
    EXPECT_EQ(data.Triangles().size(), 5 * 3);
    EXPECT_EQ(data.Wireframe().size(), 7 * 2);
    EXPECT_EQ(data.Boundary().size(), 7 * 2);
}

TEST(MeshDrawData, aClosedMeshHasNoBoundary)
{
    const Owned mesh(cube());
    MeshDrawData data;
    data.Update(*mesh);
    EXPECT_EQ(data.Triangles().size(), 12 * 3);
    EXPECT_EQ(data.Wireframe().size(), 12 * 2);
    EXPECT_TRUE(data.Boundary().isEmpty());
}

TEST(MeshDrawData, smoothNormalsAreTheMeshsOwn)
{
    const Owned mesh(sphere(12, 18));
    mesh->SetVertexNormal(5, {0.0f, 3.0f, 0.0f});
    MeshDrawData data;
    data.Update(*mesh);
    ASSERT_EQ(data.Normals().size(), mesh->VertexCount());
    for (int v = 0; v < mesh->VertexCount(); ++v)
        EXPECT_LE((data.Normals()[v] - Normalized(mesh->VertexNormal(v))).Length(), 1e-6f);
    EXPECT_EQ(data.Normals()[5], Vector(0.0f, 1.0f, 0.0f));
}

TEST(MeshDrawData, aMissingNormalComesFromTheFacesAround)
{
    const Owned mesh(sphere(20, 30));
    const int vertex = 100;
    mesh->SetVertexNormal(vertex, {});
    MeshDrawData data;
    data.Update(*mesh);
    EXPECT_GT(Dot(data.Normals()[vertex], Normalized(mesh->VertexPosition(vertex))), 0.99f);
    // It follows the faces when they move, for the mesh still has none.
    mesh->SetVertexPosition(vertex, mesh->VertexPosition(vertex) * 0.5f);
    mesh->SetVertexPosition(vertex + 1, mesh->VertexPosition(vertex + 1) * 2.0f);
    const Vector before = data.Normals()[vertex];
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::PositionsPart | MeshDrawData::NormalsPart);
    EXPECT_NE(data.Normals()[vertex], before);
    EXPECT_NEAR(data.Normals()[vertex].Length(), 1.0f, 1e-6f);
}

TEST(MeshDrawData, onlyWhatChangedIsReported)
{
    const Owned mesh(gridOfTriangles(4, 4));
    MeshDrawData data;
    EXPECT_EQ(data.Update(*mesh), AllParts);
    EXPECT_EQ(data.Update(*mesh), 0);
    mesh->SetVertexPosition(3, {3.0f, 0.0f, 0.7f});
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::PositionsPart);
    EXPECT_EQ(data.Positions()[3], Vector(3.0f, 0.0f, 0.7f));
    mesh->RecomputeNormals(false);
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::NormalsPart);
    mesh->SetFakeTriangle(1, true);
    mesh->Update(true, 0);
    const int edges = data.Wireframe().size();
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::FacesPart);
    EXPECT_EQ(data.Wireframe().size(), edges - 2);
    mesh->SetTriangleIndex(0, 0, 7);
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::FacesPart);
    EXPECT_EQ(data.Triangles()[0], 7);
    mesh->SetVertexNormal(0, {std::nanf(""), 0.0f, 0.0f});
    EXPECT_EQ(data.Update(*mesh), MeshDrawData::NormalsPart);
    EXPECT_EQ(data.Update(*mesh), 0);
    const Owned other(cube());
    EXPECT_EQ(data.Update(*other), AllParts);
    EXPECT_EQ(data.Positions().size(), 8);
}

TEST(MeshDrawData, aChangeIsSeenThoughTheMeshIsNewAtAnOldPlace)
{
    std::mt19937 random(testSeed());
    MeshDrawData data;
    for (int round = 0; round < 200; ++round) {
        const Owned mesh(randomMesh(Topology::Triangles, 30, 30, random));
        EXPECT_EQ(data.Update(*mesh), AllParts);
        EXPECT_EQ(data.Positions(), mesh->Positions());
        EXPECT_EQ(data.Triangles(), mesh->Corners());
    }
}

TEST(MeshDrawData, theArraysAreSharedWithTheMesh)
{
    const Owned mesh(gridOfTriangles(3, 3));
    MeshDrawData data;
    data.Update(*mesh);
    EXPECT_EQ(data.Positions().constData(), mesh->Positions().constData());
    EXPECT_EQ(data.Triangles().constData(), mesh->Corners().constData());
}

TEST(MeshDrawData, facesOfLostVerticesAreLeftOut)
{
    for (const bool quads : {false, true}) {
        const Owned mesh(quads ? gridOfQuads(3, 3) : gridOfTriangles(3, 3));
        mesh->SetVertexCount(10);
        MeshDrawData data;
        data.Update(*mesh);
        EXPECT_FALSE(data.Triangles().isEmpty());
        for (const QVector<int> &list : {data.Triangles(), data.Wireframe(), data.Boundary()}) {
            for (int index : list)
                EXPECT_LT(index, 10);
        }
        EXPECT_EQ(flatDrawData(*mesh).positions.size(), data.Triangles().size());
    }
}

TEST(MeshDrawData, anEmptyMeshGivesNothing)
{
    const SubdivisionLevel mesh;
    MeshDrawData data;
    EXPECT_EQ(data.Update(mesh), 0);
    EXPECT_TRUE(data.Triangles().isEmpty());
    EXPECT_TRUE(flatDrawData(mesh).positions.isEmpty());
}

TEST(FlatDrawData, everyCornerHasTheNormalOfItsPolygon)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 60; ++round) {
        const Owned mesh(randomOfKind(round % 3, random));
        const FlatDrawData flat = flatDrawData(*mesh);
        int next = 0;
        for (const QVector<int> &polygon : plainPolygons(*mesh)) {
            // The plane's direction from the sides, by Newell's sums.
            double normal[3] = {};
            for (int i = 0; i < polygon.size(); ++i) {
                const Vector p = mesh->VertexPosition(polygon[i]);
                const Vector q = mesh->VertexPosition(polygon[(i + 1) % polygon.size()]);
                normal[0] += double(p.y - q.y) * double(p.z + q.z);
                normal[1] += double(p.z - q.z) * double(p.x + q.x);
                normal[2] += double(p.x - q.x) * double(p.y + q.y);
            }
            const double length = std::hypot(normal[0], normal[1], normal[2]);
            for (int i = 2; i < polygon.size(); ++i) {
                const int corners[] = {polygon[0], polygon[i - 1], polygon[i]};
                for (int corner : corners) {
                    ASSERT_LT(next, flat.positions.size());
                    EXPECT_EQ(flat.positions[next], mesh->VertexPosition(corner));
                    EXPECT_NEAR(double(flat.normals[next].x), normal[0] / length, 1e-3);
                    EXPECT_NEAR(double(flat.normals[next].y), normal[1] / length, 1e-3);
                    EXPECT_NEAR(double(flat.normals[next].z), normal[2] / length, 1e-3);
                    ++next;
                }
            }
        }
        EXPECT_EQ(next, flat.positions.size());
        EXPECT_EQ(next, flat.normals.size());
    }
}

TEST(FaultDrawData, eachFaultIsDrawnWhereItIs)
{
    std::mt19937 random(testSeed());
    int lines = 0;
    int points = 0;
    int faces = 0;
    for (int round = 0; round < 60; ++round) {
        const Owned mesh(randomOfKind(round % 3, random));
        const QVector<orvane::MeshFault> faults = MeshChecker().Find(mesh.data());
        const FaultDrawData data = faultDrawData(*mesh, faults);
        const auto polygons = plainPolygons(*mesh);
        int expectedLines = 0;
        int expectedTriangles = 0;
        for (const orvane::MeshFault &fault : faults) {
            for (int vertex : fault.vertices)
                EXPECT_TRUE(data.points.contains(mesh->VertexPosition(vertex)));
            expectedLines += fault.edges.size();
            for (const orvane::FaultyPolygon &faulty : fault.polygons) {
                expectedLines += polygons[faulty.polygon].size();
                expectedTriangles += polygons[faulty.polygon].size() - 2;
            }
            for (const orvane::MeshEdge &edge : fault.edges) {
                const Vector a = mesh->VertexPosition(edge.a);
                bool found = false;
                for (int i = 0; i < data.lines.size(); i += 2)
                    found |=
                        data.lines[i] == a && data.lines[i + 1] == mesh->VertexPosition(edge.b);
                EXPECT_TRUE(found);
            }
        }
        EXPECT_EQ(data.lines.size(), 2 * expectedLines);
        EXPECT_EQ(data.triangles.size(), 3 * expectedTriangles);
        lines += data.lines.size();
        points += data.points.size();
        faces += data.triangles.size();
    }
    EXPECT_GT(lines, 0);
    EXPECT_GT(points, 0);
    EXPECT_GE(faces, 0);
}

TEST(FaultDrawData, aFaceWithoutAreaCanBeSeen)
{
    const Owned mesh(meshOf(Topology::Triangles, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {2, 0, 0}},
                            {0, 1, 2, 0, 1, 3}));
    const FaultDrawData data = faultDrawData(*mesh, MeshChecker().Find(mesh.data()));
    for (const Vector &corner : {Vector(0, 0, 0), Vector(1, 0, 0), Vector(2, 0, 0)})
        EXPECT_TRUE(data.points.contains(corner));
    EXPECT_EQ(data.triangles.size(), 3);
}

TEST(FaultDrawData, anEdgeWithoutLengthCanBeSeen)
{
    const Owned mesh(meshOf(Topology::Triangles, {{0, 0, 0}, {0, 0, 0}, {5, 5, 0}}, {0, 1, 2}));
    const FaultDrawData data = faultDrawData(*mesh, MeshChecker().Find(mesh.data()));
    EXPECT_TRUE(data.points.contains(Vector(0, 0, 0)));
}

TEST(FaultDrawData, aGoodMeshHasNothingToDraw)
{
    const Owned mesh(cube());
    EXPECT_TRUE(faultDrawData(*mesh, MeshChecker().Find(mesh.data())).IsEmpty());
}

TEST(FaultDrawData, placesThatAreGoneAreLeftOut)
{
    std::mt19937 random(testSeed());
    const Owned large(randomPolygons(random));
    const auto faults = MeshChecker().Find(large.data());
    ASSERT_FALSE(faults.isEmpty());
    const Owned small(singleTriangle());
    const FaultDrawData data = faultDrawData(*small, faults);
    for (const Vector &point : data.points)
        EXPECT_TRUE(small->Positions().contains(point));
    for (const Vector &end : data.lines)
        EXPECT_TRUE(small->Positions().contains(end));
}

TEST(MeshDrawData, aMillionTrianglesArePreparedInGoodTime)
{
    const Owned mesh(gridOfTriangles(1000, 500));
    ASSERT_EQ(mesh->FaceCount(), 1000000);
    MeshDrawData data;
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(data.Update(*mesh), AllParts);
    const double first = double(timer.nsecsElapsed()) / 1e6;
    timer.restart();
    EXPECT_EQ(data.Update(*mesh), 0);
    const double again = double(timer.nsecsElapsed()) / 1e6;
    timer.restart();
    EXPECT_EQ(flatDrawData(*mesh).positions.size(), 3000000);
    const double flat = double(timer.nsecsElapsed()) / 1e6;
    std::cout << "first " << first << " ms, unchanged " << again << " ms, flat " << flat << " ms"
              << std::endl;
    EXPECT_LT(first, double(timeLimit(2000)));
    EXPECT_LT(again, double(timeLimit(100)));
    EXPECT_LT(flat, double(timeLimit(2000)));
}
