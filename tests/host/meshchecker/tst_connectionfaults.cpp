// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>

using orvane::MeshChecker;
using orvane::Topology;
using orvane::Vector;

namespace {

int faultsOf(const MeshPointer &mesh)
{
    return MeshChecker().Validate(mesh.get());
}

QStringList places(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list.append(QLatin1String(text));
    return list;
}

// Two regular polygons on either side of the edge 0-1, fanned about vertex 0.
MeshPointer twoPolygonsOnAnEdge(int corners)
{
    QVector<Vector> positions{{0, 0, 0}, {1, 0, 0}};
    QVector<QVector<int>> polygons{{0, 1}, {1, 0}};
    const double turn = 2.0 * M_PI / corners;
    for (int side : {1, -1}) {
        Vector at(1, 0, 0);
        for (int i = 1; i + 1 < corners; ++i) {
            at += Vector(float(std::cos(turn * i)), float(side * std::sin(turn * i)), 0);
            positions.append(at);
        }
    }
    for (int i = 2; i < corners; ++i)
        polygons[0].append(i);
    polygons[1] = {0};
    for (int i = 2 * corners - 3; i >= corners; --i)
        polygons[1].append(i);
    polygons[1].append(1);
    return polygonMesh(positions, polygons);
}

// Triangles around edge 0-1, opened like the pages of a book.
MeshPointer book(int pages)
{
    QVector<Vector> positions{{0, 0, 0}, {0, 0, 1}};
    QVector<QVector<int>> triangles;
    for (int i = 0; i < pages; ++i) {
        positions.append({float(std::cos(i)), float(std::sin(i)), 0.5f});
        triangles.append({0, 1, 2 + i});
    }
    return polygonMesh(positions, triangles);
}

const QVector<Vector> DoublePyramid{
    {0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0.5f, 0.5f, 1}, {0.5f, 0.5f, -1}};
const QVector<QVector<int>> DoublePyramidFaces{{0, 1, 3}, {1, 2, 3}, {2, 0, 3},
                                               {1, 0, 4}, {2, 1, 4}, {0, 2, 4}};

} // namespace

TEST(HighValence, isAFaultFromSeventeenEdgesOn)
{
    EXPECT_EQ(faultsOf(wheel(16)), 0);
    const MeshPointer mesh = wheel(17);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::HighValence);
    EXPECT_EQ(placesOf(MeshChecker::HighValence, *mesh), places({"vertex 0"}));
}

TEST(HighValence, doesNotCountTheInnerEdgesOfPolygons)
{
    const MeshPointer mesh = twoPolygonsOnAnEdge(12);
    ASSERT_EQ(mesh->FaceCount(), 20); // all of them at vertex 0
    EXPECT_EQ(faultsOf(mesh), 0);
}

TEST(HighValence, countsBoundaryEdgesToo)
{
    QVector<Vector> positions{{0, 0, 0}};
    QVector<QVector<int>> triangles;
    for (int i = 0; i <= 16; ++i) {
        const double angle = M_PI * i / 16;
        positions.append({float(std::cos(angle)), float(std::sin(angle)), 0});
        if (i > 0)
            triangles.append({0, i, i + 1});
    }
    EXPECT_EQ(faultsOf(polygonMesh(positions, triangles)), MeshChecker::HighValence);
    triangles.removeLast();
    EXPECT_EQ(faultsOf(polygonMesh(positions, triangles)), 0);
}

TEST(NonManifoldEdge, isFoundWhereAWallClosesOffAPyramid)
{
    EXPECT_EQ(faultsOf(polygonMesh(DoublePyramid, DoublePyramidFaces)), 0);
    QVector<QVector<int>> walled = DoublePyramidFaces;
    walled.append({0, 1, 2});
    const MeshPointer mesh = polygonMesh(DoublePyramid, walled);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::NonManifoldEdge);
    EXPECT_EQ(placesOf(MeshChecker::NonManifoldEdge, *mesh),
              places({"edge 0-1", "edge 0-2", "edge 1-2"}));
}

TEST(NonManifoldEdge, needsMoreThanTwoFaces)
{
    EXPECT_EQ(faultsOf(book(2)), 0);
    // Three pages also give each end of the edge three boundary edges.
    EXPECT_EQ(faultsOf(book(3)), MeshChecker::NonManifoldEdge | MeshChecker::BoundaryValence);
    EXPECT_EQ(faultsOf(book(4)), MeshChecker::NonManifoldEdge | MeshChecker::BoundaryValence);
}

TEST(VertexSplice, isFoundWhereTwoSolidsTouchAtAPoint)
{
    QVector<Vector> positions{{0, 0, 0}};
    QVector<QVector<int>> faces;
    for (int side : {1, -1}) {
        const int v = positions.size();
        const float s = float(side);
        positions << Vector(s, 0, 0) << Vector(0, s, 0) << Vector(0, 0, s);
        faces << QVector<int>{0, v, v + 1} << QVector<int>{0, v + 1, v + 2}
              << QVector<int>{0, v + 2, v} << QVector<int>{v, v + 2, v + 1};
    }
    const MeshPointer mesh = polygonMesh(positions, faces);
    EXPECT_EQ(faultsOf(mesh), MeshChecker::VertexSplice);
    EXPECT_EQ(placesOf(MeshChecker::VertexSplice, *mesh), places({"vertex 0"}));
}

TEST(VertexSplice, aBowtieIsOneAndHasTooManyBoundaryEdges)
{
    const MeshPointer mesh = polygonMesh({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {-1, 0, 0}, {-1, -1, 0}},
                                         {{0, 1, 2}, {0, 3, 4}});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::VertexSplice | MeshChecker::BoundaryValence);
    EXPECT_EQ(placesOf(MeshChecker::BoundaryValence, *mesh), places({"vertex 0"}));
}

TEST(VertexSplice, facesJoinedThroughOthersAreOneFan)
{
    // Faces 0 and 2 at the centre touch only through face 1.
    const QVector<Vector> around{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, -1, 0}};
    EXPECT_EQ(faultsOf(polygonMesh(around, {{0, 1, 2}, {0, 2, 3}, {0, 3, 4}})), 0);
    EXPECT_EQ(faultsOf(polygonMesh(around, {{0, 1, 2}, {0, 3, 4}})),
              MeshChecker::VertexSplice | MeshChecker::BoundaryValence);
}

TEST(VertexSplice, twistedWindingDoesNotMatter)
{
    EXPECT_EQ(
        faultsOf(polygonMesh({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}}, {{0, 1, 2}, {1, 2, 3}})),
        0);
}

TEST(VertexSplice, aPolygonThatComesBackToAVertexIsOne)
{
    const MeshPointer mesh = polygonMesh({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {-1, 0, 0}, {-1, -1, 0}},
                                         {{0, 1, 2, 0, 3, 4}});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::VertexSplice | MeshChecker::BoundaryValence);
}

TEST(BoundaryValence, twoBoundaryEdgesAreFine)
{
    // A ring of squares round a hole: every vertex is on a boundary, each with two edges of it.
    QVector<QVector<int>> ring;
    QVector<Vector> positions;
    for (int v = 0; v < 16; ++v)
        positions.append({float(v % 4), float(v / 4), 0});
    for (int v : {0, 1, 2, 4, 6, 8, 9, 10})
        ring.append({v, v + 1, v + 5, v + 4});
    EXPECT_EQ(faultsOf(polygonMesh(positions, ring)), 0);
    // Without a corner square the hole stays apart from the outside.
    ring.removeFirst();
    EXPECT_EQ(faultsOf(polygonMesh(positions, ring)),
              MeshChecker::VertexSplice | MeshChecker::BoundaryValence);
}

TEST(InteriorValenceTwo, isFoundBetweenTwoFacesThatShareTwoEdges)
{
    const MeshPointer mesh =
        polygonMesh({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0.4f, 0.5f, 0}, {0, 1, 0}},
                    {{0, 1, 2, 3}, {0, 3, 2, 4}});
    EXPECT_EQ(faultsOf(mesh), MeshChecker::InteriorValenceTwo);
    EXPECT_EQ(placesOf(MeshChecker::InteriorValenceTwo, *mesh), places({"vertex 3"}));
}

TEST(InteriorValenceTwo, aBoundaryVertexMayHaveTwoAndAnInteriorOneThree)
{
    EXPECT_EQ(faultsOf(MeshPointer(singleQuad())), 0);
    EXPECT_EQ(faultsOf(MeshPointer(cube())), 0);
}
