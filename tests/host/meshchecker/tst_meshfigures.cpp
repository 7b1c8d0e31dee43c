// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshfigures.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <orvane/geometry/geometry.h>

#include <QElapsedTimer>

#include <cmath>
#include <iostream>
#include <limits>
#include <map>
#include <set>

using orvane::figuresOf;
using orvane::Matrix;
using orvane::MeshChecker;
using orvane::MeshFigures;
using orvane::SubdivisionLevel;
using orvane::Topology;
using orvane::Vector;

namespace {

using Edge = std::pair<int, int>;
using Links = std::map<int, std::set<int>>;

const double Exact = 1e-12;
const qint64 Quick = 10000; // milliseconds; far less than anything quadratic takes

// How many connected parts the links make, each vertex reached from its neighbours one by one.
int partsOf(Links links)
{
    int parts = 0;
    while (!links.empty()) {
        ++parts;
        std::vector<int> open{links.begin()->first};
        while (!open.empty()) {
            const int vertex = open.back();
            open.pop_back();
            const auto found = links.find(vertex);
            if (found == links.end())
                continue;
            open.insert(open.end(), found->second.begin(), found->second.end());
            links.erase(found);
        }
    }
    return parts;
}

void link(Links &links, const Edge &edge)
{
    links[edge.first].insert(edge.second);
    links[edge.second].insert(edge.first);
}

double lengthOf(const Vector &v)
{
    return std::sqrt(double(v.x) * double(v.x) + double(v.y) * double(v.y)
                     + double(v.z) * double(v.z));
}

// Counts a mesh of polygons, none of which has a corner twice in a row, from its very words.
MeshFigures plainFigures(const QVector<Vector> &positions, const QVector<QVector<int>> &polygons)
{
    MeshFigures plain;
    std::map<Edge, int> sides;
    Links links;
    Links openLinks;
    for (const QVector<int> &polygon : polygons) {
        while (plain.polygonsByCorners.size() <= polygon.size())
            plain.polygonsByCorners.append(0);
        ++plain.polygonsByCorners[polygon.size()];
        for (int i = 0; i < polygon.size(); ++i) {
            const int v = polygon[i];
            const int w = polygon[(i + 1) % polygon.size()];
            ++sides[{std::min(v, w), std::max(v, w)}];
        }
        for (int i = 2; i < polygon.size(); ++i) {
            const Vector a = positions[polygon[i - 1]] - positions[polygon[0]];
            plain.area += lengthOf(a & (positions[polygon[i]] - positions[polygon[0]])) / 2;
        }
    }
    plain.shortestEdge = std::numeric_limits<double>::max();
    for (const auto &side : sides) {
        link(links, side.first);
        const double length = lengthOf(positions[side.first.second] - positions[side.first.first]);
        plain.shortestEdge = std::min(plain.shortestEdge, length);
        plain.longestEdge = std::max(plain.longestEdge, length);
        plain.meanEdge += length / double(sides.size());
        if (side.second == 1) {
            ++plain.openEdges;
            link(openLinks, side.first);
        }
    }
    plain.vertices = positions.size();
    plain.unusedVertices = positions.size() - int(links.size());
    plain.polygons = polygons.size();
    plain.edges = int(sides.size());
    plain.parts = partsOf(links);
    plain.boundaryLoops = partsOf(openLinks);
    const bool areQuads = plain.polygons == plain.polygonsByCorners.value(4);
    for (const auto &vertex : links) {
        const bool isRegular =
            openLinks.count(vertex.first) ? vertex.second.size() <= 3 : vertex.second.size() == 4;
        plain.irregularVertices += areQuads && !isRegular;
    }
    return plain;
}

void expectEqual(const MeshFigures &found, const MeshFigures &plain)
{
    EXPECT_EQ(found.vertices, plain.vertices);
    EXPECT_EQ(found.unusedVertices, plain.unusedVertices);
    EXPECT_EQ(found.polygons, plain.polygons);
    EXPECT_EQ(found.polygonsByCorners, plain.polygonsByCorners);
    EXPECT_EQ(found.edges, plain.edges);
    EXPECT_EQ(found.openEdges, plain.openEdges);
    EXPECT_EQ(found.boundaryLoops, plain.boundaryLoops);
    EXPECT_EQ(found.parts, plain.parts);
    EXPECT_EQ(found.irregularVertices, plain.irregularVertices);
    EXPECT_NEAR(found.area, plain.area, 1e-5 * plain.area);
    EXPECT_NEAR(found.shortestEdge, plain.shortestEdge, 1e-6);
    EXPECT_NEAR(found.meanEdge, plain.meanEdge, 1e-6);
    EXPECT_NEAR(found.longestEdge, plain.longestEdge, 1e-6);
}

int eulerNumber(const MeshFigures &figures)
{
    return figures.vertices - figures.unusedVertices - figures.edges + figures.polygons;
}

MeshFigures take(SubdivisionLevel *mesh)
{
    return figuresOf(MeshPointer(mesh).get());
}

QVector<QVector<int>> randomPolygons(int count, int vertices, int fewest, int most,
                                     std::mt19937 &random)
{
    QVector<QVector<int>> polygons;
    while (polygons.size() < count) {
        const int corners = fewest + int(random() % unsigned(most - fewest + 1));
        QVector<int> polygon;
        while (polygon.size() < corners) {
            const int vertex = int(random() % unsigned(vertices));
            if (!polygon.contains(vertex))
                polygon.append(vertex);
        }
        polygons.append(polygon);
    }
    return polygons;
}

class Figures : public SceneCleaner
{
protected:
    std::mt19937 m_random{testSeed()};
};

} // namespace

TEST_F(Figures, ofNothingAreZero)
{
    for (const MeshFigures &none : {figuresOf(nullptr), take(new SubdivisionLevel)}) {
        EXPECT_EQ(none.vertices + none.polygons + none.edges + none.parts + none.openEdges, 0);
        EXPECT_EQ(none.area + none.shortestEdge + none.meanEdge + none.longestEdge, 0.0);
        EXPECT_TRUE(none.FaultTexts().isEmpty());
    }
}

TEST_F(Figures, ofACubeAreKnown)
{
    const MeshFigures found = take(cube(2.0f));
    EXPECT_EQ(found.vertices, 8);
    EXPECT_EQ(found.polygonsByCorners, QVector<int>({0, 0, 0, 0, 6}));
    EXPECT_EQ(found.edges, 12);
    EXPECT_EQ(found.openEdges, 0);
    EXPECT_EQ(found.boundaryLoops, 0);
    EXPECT_EQ(found.parts, 1);
    EXPECT_EQ(found.irregularVertices, 8);
    EXPECT_NEAR(found.area, 24.0, Exact);
    EXPECT_NEAR(found.shortestEdge, 2.0, Exact);
    EXPECT_NEAR(found.meanEdge, 2.0, Exact);
    EXPECT_NEAR(found.longestEdge, 2.0, Exact);
}

TEST_F(Figures, ofAGridAreKnown)
{
    const MeshFigures quads = take(gridOfQuads(5, 3));
    EXPECT_EQ(quads.polygons, 15);
    EXPECT_EQ(quads.edges, 5 * 4 + 3 * 6);
    EXPECT_EQ(quads.openEdges, 16);
    EXPECT_EQ(quads.boundaryLoops, 1);
    EXPECT_EQ(quads.irregularVertices, 0);
    EXPECT_NEAR(quads.area, 15.0, Exact);
    const MeshFigures triangles = take(gridOfTriangles(5, 3));
    EXPECT_EQ(triangles.polygonsByCorners, QVector<int>({0, 0, 0, 30}));
    EXPECT_EQ(triangles.edges, quads.edges + 15);
    EXPECT_EQ(triangles.irregularVertices, 0);
    EXPECT_NEAR(triangles.longestEdge, std::sqrt(2.0), Exact);
}

TEST_F(Figures, seeAPolygonOfFakeTrianglesAsOne)
{
    const MeshFigures found = take(polygonOfFakes(7));
    EXPECT_EQ(found.polygonsByCorners, QVector<int>({0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(found.edges, 7);
    EXPECT_EQ(found.openEdges, 7);
    EXPECT_NEAR(found.area, 3.5 * std::sin(2 * 3.14159265358979 / 7), 1e-6);
}

TEST_F(Figures, countIrregularVerticesOfQuadsOnly)
{
    // Three quads about vertex 0, which so has three edges.
    const QVector<Vector> positions{{0, 0, 0},  {1, 0, 0},  {1, 1, 0}, {0, 1, 0},
                                    {-1, 1, 0}, {-1, 0, 0}, {0, -1, 0}};
    const QVector<int> corners{0, 1, 2, 3, 0, 3, 4, 5, 0, 5, 6, 1};
    EXPECT_EQ(take(meshOf(Topology::Quads, positions, corners)).irregularVertices, 1);
    QVector<QVector<int>> polygons{{0, 1, 2, 3}, {0, 3, 4, 5}, {0, 5, 6, 1}};
    EXPECT_EQ(figuresOf(polygonMesh(positions, polygons).get()).irregularVertices, 1);
    polygons.append({2, 1, 6});
    EXPECT_EQ(figuresOf(polygonMesh(positions, polygons).get()).irregularVertices, 0);
}

TEST_F(Figures, leaveOutUnusedVerticesAndPlacesThatAreNotFinite)
{
    SubdivisionLevel *mesh = gridOfTriangles(2, 1);
    mesh->SetVertexCount(10);
    mesh->SetVertexPosition(8, {1000, 0, 0});
    mesh->SetVertexPosition(2, {std::numeric_limits<float>::quiet_NaN(), 0, 0});
    const MeshFigures found = take(mesh);
    EXPECT_EQ(found.vertices, 10);
    EXPECT_EQ(found.unusedVertices, 4);
    EXPECT_EQ(found.parts, 1);
    EXPECT_TRUE(std::isfinite(found.area) && std::isfinite(found.meanEdge));
    EXPECT_NEAR(found.area, 1.5, Exact);
    EXPECT_NEAR(found.longestEdge, std::sqrt(2.0), Exact);
}

TEST_F(Figures, measureInTheWorld)
{
    const orvane::Geometry *geometry =
        addToScene(gridOfQuads(4, 4), QStringLiteral("Grid"),
                   Matrix::Scaling({3, 0.5f, 1}) * Matrix::Rotation({1, 2, 3}, 0.8f));
    const MeshFigures found = figuresOf(geometry->CurrentLevel());
    EXPECT_NEAR(found.area, 24.0, 1e-4);
    EXPECT_NEAR(found.shortestEdge, 0.5, 1e-5);
    EXPECT_NEAR(found.meanEdge, 1.75, 1e-5);
    EXPECT_NEAR(found.longestEdge, 3.0, 1e-5);
}

TEST_F(Figures, ofRandomPolygonsAreThoseOfPlainCounting)
{
    int quadMeshes = 0;
    for (int round = 0; round < 400; ++round) {
        const int vertices = 6 + int(m_random() % 40);
        QVector<Vector> positions;
        for (int v = 0; v < vertices; ++v)
            positions.append(randomVector(m_random));
        const bool quads = round % 3 == 0;
        const QVector<QVector<int>> polygons = randomPolygons(
            1 + int(m_random() % 30), vertices, quads ? 4 : 3, quads ? 4 : 6, m_random);
        quadMeshes += quads;
        expectEqual(figuresOf(polygonMesh(positions, polygons).get()),
                    plainFigures(positions, polygons));
    }
    EXPECT_GT(quadMeshes, 100);
}

TEST_F(Figures, agreeWithEuler)
{
    EXPECT_EQ(eulerNumber(take(tetrahedron())), 2);
    EXPECT_EQ(eulerNumber(take(cube())), 2);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(eulerNumber(take(sphere(2 + int(m_random() % 20), 3 + int(m_random() % 20)))), 2);
    // A sphere of random holes: each part is a sphere less its openings.
    int withHoles = 0;
    for (int round = 0; round < 200; ++round) {
        const MeshPointer whole(sphere(12, 14));
        QVector<int> corners;
        for (int f = 0; f < whole->FaceCount(); ++f) {
            if (m_random() % 30 != 0)
                corners += whole->Corners().mid(3 * f, 3);
        }
        const MeshPointer mesh(meshOf(Topology::Triangles, whole->Positions(), corners));
        const MeshFigures found = figuresOf(mesh.get());
        // Openings that touch in a vertex are counted as one: there Euler says something else.
        if (MeshChecker().Validate(mesh.get()) & MeshChecker::BoundaryValence)
            continue;
        withHoles += found.boundaryLoops > 1;
        EXPECT_EQ(eulerNumber(found), 2 * found.parts - found.boundaryLoops);
    }
    EXPECT_GT(withHoles, 20);
}

TEST_F(Figures, namePartsAndLoopsApart)
{
    QVector<Vector> positions;
    QVector<int> corners;
    for (int part = 0; part < 5; ++part) {
        const MeshPointer grid(gridOfQuads(2, 2));
        for (int corner : grid->Corners())
            corners.append(corner + positions.size());
        for (const Vector &p : grid->Positions())
            positions.append(p + Vector(0, 0, float(part)));
    }
    const MeshFigures found = take(meshOf(Topology::Quads, positions, corners));
    EXPECT_EQ(found.parts, 5);
    EXPECT_EQ(found.boundaryLoops, 5);
    EXPECT_EQ(found.openEdges, 40);
}

TEST_F(Figures, sayFaultsInWords)
{
    EXPECT_TRUE(take(cube()).FaultTexts().isEmpty());
    const MeshFigures found =
        take(meshOf(Topology::Triangles, {{0, 0, 0}, {1, 0, 0}, {1, 0, 0}, {0, 1, 0}},
                    {0, 1, 3, 1, 2, 3, 1, 2, 3}));
    const QStringList texts = found.FaultTexts();
    ASSERT_EQ(texts.size(), found.faults.size());
    EXPECT_TRUE(texts.contains(QStringLiteral("zero-length edge: 1, the first is edge 1-2")));
    EXPECT_TRUE(
        texts.contains(QStringLiteral("lamina face: 2, the first is polygon 1 (mesh face 1)")));
}

TEST_F(Figures, ofAMillionTrianglesAreTakenQuickly)
{
    for (int columns : {250, 500, 1000}) {
        const MeshPointer mesh(gridOfTriangles(columns, 500));
        QElapsedTimer timer;
        timer.start();
        const MeshFigures found = figuresOf(mesh.get());
        const qint64 elapsed = timer.elapsed();
        std::cout << found.polygons << " triangles in " << elapsed << " ms" << std::endl;
        EXPECT_EQ(found.boundaryLoops, 1);
        EXPECT_EQ(eulerNumber(found), 1);
        EXPECT_LT(elapsed, timeLimit(Quick));
    }
}
