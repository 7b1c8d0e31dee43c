// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include <orvane/geometry/polygons.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <gtest/gtest.h>

#include <QScopedPointer>

#include <map>
#include <utility>

using orvane::MeshEdge;
using orvane::PolygonList;
using orvane::SubdivisionLevel;
using orvane::Topology;

namespace {

using MeshPointer = QScopedPointer<SubdivisionLevel>;
using EdgeCounts = std::map<std::pair<int, int>, int>;

QVector<int> cornersOf(const PolygonList &list, int polygon)
{
    QVector<int> corners;
    for (int i = 0; i < list.CornerCount(polygon); ++i)
        corners.append(list.Corners(polygon)[i]);
    return corners;
}

EdgeCounts countedOneByOne(const PolygonList &list)
{
    EdgeCounts counts;
    for (int p = 0; p < list.Count(); ++p) {
        const QVector<int> corners = cornersOf(list, p);
        for (int i = 0; i < corners.size(); ++i) {
            const int v = corners[i];
            const int w = corners[(i + 1) % corners.size()];
            if (v != w)
                ++counts[std::minmax(v, w)];
        }
    }
    return counts;
}

void expectSameEdges(const QVector<MeshEdge> &edges, const EdgeCounts &expected)
{
    ASSERT_EQ(edges.size(), int(expected.size()));
    int i = 0;
    for (const auto &entry : expected) { // a map is ascending, as the edges are to be
        EXPECT_EQ(edges[i].a, entry.first.first) << "edge " << i;
        EXPECT_EQ(edges[i].b, entry.first.second) << "edge " << i;
        EXPECT_EQ(edges[i].polygons, entry.second) << "edge " << i;
        ++i;
    }
}

} // namespace

TEST(Polygons, areTheQuadsThemselves)
{
    const MeshPointer mesh(gridOfQuads(2, 1));
    const PolygonList list = polygonsOf(*mesh);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(cornersOf(list, 0), QVector<int>({0, 1, 4, 3}));
    EXPECT_EQ(cornersOf(list, 1), QVector<int>({1, 2, 5, 4}));
    EXPECT_EQ(list.firstFace, QVector<int>({0, 1}));
    EXPECT_TRUE(list.uvCorners.isEmpty());
}

TEST(Polygons, joinATriangleWithTheFakeOnesAfterIt)
{
    for (int corners = 3; corners < 12; ++corners) {
        const MeshPointer mesh(polygonOfFakes(corners));
        const PolygonList list = polygonsOf(*mesh);
        ASSERT_EQ(list.Count(), 1) << corners;
        QVector<int> expected;
        for (int i = 0; i < corners; ++i)
            expected.append(i);
        EXPECT_EQ(cornersOf(list, 0), expected);
    }
}

TEST(Polygons, ofDifferentSizesLieSideBySide)
{
    // A triangle, a quad of two triangles, a triangle.
    const MeshPointer mesh(meshOf(Topology::Triangles, QVector<orvane::Vector>(6),
                                  {0, 1, 2, 1, 3, 4, 1, 4, 2, 3, 5, 4}));
    mesh->SetFakeTriangle(2, true);
    const PolygonList list = polygonsOf(*mesh);
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(cornersOf(list, 0), QVector<int>({0, 1, 2}));
    EXPECT_EQ(cornersOf(list, 1), QVector<int>({1, 3, 4, 2}));
    EXPECT_EQ(cornersOf(list, 2), QVector<int>({3, 5, 4}));
    EXPECT_EQ(list.firstFace, QVector<int>({0, 1, 3}));
}

TEST(Polygons, carryTheTextureCoordinatesOfTheirCorners)
{
    const MeshPointer mesh(polygonOfFakes(4));
    mesh->SetUVCount(4);
    for (int corner = 0; corner < 3; ++corner)
        mesh->SetUVIndex(0, corner, corner);
    mesh->SetUVIndex(1, 0, 0);
    mesh->SetUVIndex(1, 1, 2);
    mesh->SetUVIndex(1, 2, 3);
    EXPECT_EQ(polygonsOf(*mesh).uvCorners, QVector<int>({0, 1, 2, 3}));
}

TEST(Edges, ofAClosedShapeHaveTwoPolygonsEach)
{
    const MeshPointer mesh(cube());
    const QVector<MeshEdge> edges = edgesOf(polygonsOf(*mesh), mesh->VertexCount());
    EXPECT_EQ(edges.size(), 12);
    for (const MeshEdge &edge : edges)
        EXPECT_EQ(edge.polygons, 2);
}

TEST(Edges, obeyEulersFormulaOnASphere)
{
    for (int rings = 2; rings < 9; ++rings) {
        const MeshPointer mesh(sphere(rings, rings + 3));
        EXPECT_EQ(mesh->VertexCount() - mesh->Edges().size() + mesh->Polygons().Count(), 2)
            << rings;
    }
}

TEST(Edges, leaveOutTheCutsBetweenFakeTriangles)
{
    const MeshPointer mesh(polygonOfFakes(8));
    EXPECT_EQ(mesh->Edges().size(), 8);
}

TEST(Edges, leaveOutSidesFromAVertexToItself)
{
    const MeshPointer mesh(meshOf(Topology::Triangles, QVector<orvane::Vector>(2), {0, 0, 1}));
    ASSERT_EQ(mesh->Edges().size(), 1);
    EXPECT_EQ(mesh->Edges()[0].polygons, 2);
}

TEST(Edges, countEachSideOfAFoldedPolygon)
{
    const MeshPointer mesh(meshOf(Topology::Triangles, QVector<orvane::Vector>(4),
                                  {0, 1, 2, 0, 1, 2, 2, 1, 0, 1, 2, 3}));
    expectSameEdges(mesh->Edges(),
                    {{{0, 1}, 3}, {{0, 2}, 3}, {{1, 2}, 4}, {{1, 3}, 1}, {{2, 3}, 1}});
}

TEST(Edges, agreeWithCountingOneByOneOnRandomMeshes)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        const Topology::FaceType type = round % 2 ? Topology::Quads : Topology::Triangles;
        const int vertices = 4 + int(random() % 40);
        const MeshPointer mesh(randomMesh(type, vertices, 1 + int(random() % 120), random));
        for (int face = 1; face < mesh->FaceCount() && type == Topology::Triangles; ++face)
            mesh->SetFakeTriangle(face, random() % 3 == 0);
        const PolygonList list = polygonsOf(*mesh);
        expectSameEdges(edgesOf(list, vertices), countedOneByOne(list));
    }
}
