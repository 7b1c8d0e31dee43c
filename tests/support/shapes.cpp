// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>

using orvane::Matrix;
using orvane::SubdivisionLevel;
using orvane::Topology;
using orvane::Vector;

namespace {

const float Pi = 3.14159265f;

void finish(SubdivisionLevel *mesh)
{
    mesh->RecomputeNormals(false);
    mesh->Update(true, 0);
}

QVector<Vector> gridPositions(int columns, int rows)
{
    QVector<Vector> positions;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column)
            positions.append(Vector(float(column), float(row), 0.0f));
    }
    return positions;
}

QVector<int> gridCorners(int columns, int rows)
{
    QVector<int> corners;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const int v = row * (columns + 1) + column;
            corners << v << v + 1 << v + columns + 2 << v + columns + 1;
        }
    }
    return corners;
}

} // namespace

SubdivisionLevel *meshOf(Topology::FaceType type, const QVector<Vector> &positions,
                         const QVector<int> &corners)
{
    auto *mesh = new SubdivisionLevel(type); // the caller's
    mesh->SetVertexCount(positions.size());
    for (int v = 0; v < positions.size(); ++v)
        mesh->SetVertexPosition(v, positions[v]);
    const int perFace = mesh->CornersPerFace();
    mesh->SetFaceCount(corners.size() / perFace);
    for (int i = 0; i < corners.size(); ++i) {
        if (type == Topology::Quads)
            mesh->SetQuadIndex(i / perFace, i % perFace, corners[i]);
        else
            mesh->SetTriangleIndex(i / perFace, i % perFace, corners[i]);
    }
    finish(mesh);
    return mesh;
}

SubdivisionLevel *singleTriangle(float side)
{
    return meshOf(Topology::Triangles, {{0, 0, 0}, {side, 0, 0}, {0, side, 0}}, {0, 1, 2});
}

SubdivisionLevel *singleQuad(float side)
{
    return meshOf(Topology::Quads, {{0, 0, 0}, {side, 0, 0}, {side, side, 0}, {0, side, 0}},
                  {0, 1, 2, 3});
}

SubdivisionLevel *gridOfQuads(int columns, int rows)
{
    return meshOf(Topology::Quads, gridPositions(columns, rows), gridCorners(columns, rows));
}

SubdivisionLevel *gridOfTriangles(int columns, int rows)
{
    const QVector<int> quads = gridCorners(columns, rows);
    QVector<int> corners;
    for (int i = 0; i < quads.size(); i += 4) {
        corners << quads[i] << quads[i + 1] << quads[i + 2];
        corners << quads[i] << quads[i + 2] << quads[i + 3];
    }
    return meshOf(Topology::Triangles, gridPositions(columns, rows), corners);
}

SubdivisionLevel *tetrahedron(float length)
{
    return meshOf(Topology::Triangles, {{0, 0, 0}, {length, 0, 0}, {0, length, 0}, {0, 0, length}},
                  {0, 2, 1, 0, 1, 3, 0, 3, 2, 1, 2, 3});
}

SubdivisionLevel *cube(float side)
{
    const float h = side / 2;
    return meshOf(Topology::Quads,
                  {{-h, -h, -h},
                   {h, -h, -h},
                   {h, h, -h},
                   {-h, h, -h},
                   {-h, -h, h},
                   {h, -h, h},
                   {h, h, h},
                   {-h, h, h}},
                  {0, 3, 2, 1, 4, 5, 6, 7, 0, 1, 5, 4, 1, 2, 6, 5, 2, 3, 7, 6, 3, 0, 4, 7});
}

SubdivisionLevel *sphere(int rings, int segments)
{
    QVector<Vector> positions = {{0, 0, 1}};
    for (int ring = 1; ring < rings; ++ring) {
        const float down = Pi * float(ring) / float(rings);
        for (int i = 0; i < segments; ++i) {
            const float round = 2 * Pi * float(i) / float(segments);
            positions.append(Vector(std::sin(down) * std::cos(round),
                                    std::sin(down) * std::sin(round), std::cos(down)));
        }
    }
    positions.append(Vector(0, 0, -1));

    const int last = positions.size() - 1;
    const int lowest = last - segments;
    QVector<int> corners;
    for (int i = 0; i < segments; ++i) {
        const int j = (i + 1) % segments;
        corners << 0 << 1 + i << 1 + j;
        for (int top = 1; top < lowest; top += segments) {
            corners << top + i << top + segments + i << top + segments + j;
            corners << top + i << top + segments + j << top + j;
        }
        corners << lowest + i << last << lowest + j;
    }
    return meshOf(Topology::Triangles, positions, corners);
}

SubdivisionLevel *polygonOfFakes(int corners)
{
    QVector<Vector> positions;
    QVector<int> fan;
    for (int i = 0; i < corners; ++i) {
        const float round = 2 * Pi * float(i) / float(corners);
        positions.append(Vector(std::cos(round), std::sin(round), 0.0f));
        if (i >= 2)
            fan << 0 << i - 1 << i;
    }
    SubdivisionLevel *mesh = meshOf(Topology::Triangles, positions, fan);
    for (int face = 1; face < mesh->FaceCount(); ++face)
        mesh->SetFakeTriangle(face, true);
    finish(mesh);
    return mesh;
}

SubdivisionLevel *randomMesh(Topology::FaceType type, int vertices, int faces, std::mt19937 &random)
{
    QVector<Vector> positions;
    for (int v = 0; v < vertices; ++v)
        positions.append(randomVector(random));
    const int perFace = type == Topology::Quads ? 4 : 3;
    QVector<int> corners;
    while (corners.size() < faces * perFace) {
        QVector<int> face;
        while (face.size() < perFace) {
            const int vertex = int(random() % unsigned(vertices));
            if (!face.contains(vertex))
                face.append(vertex);
        }
        corners += face;
    }
    return meshOf(type, positions, corners);
}

SubdivisionLevel *bumpySheet(int columns, int rows, std::mt19937 &random)
{
    QVector<Vector> positions = gridPositions(columns, rows);
    for (Vector &position : positions)
        position += randomVector(random, 0.3f);
    return meshOf(Topology::Quads, positions, gridCorners(columns, rows));
}

orvane::Geometry *addToScene(SubdivisionLevel *mesh, const QString &name, const Matrix &placement)
{
    auto *geometry = new orvane::Geometry; // the scene's
    geometry->SetName(name);
    geometry->Placement()->SetWorldMatrix(placement);
    geometry->AddLevel(mesh);
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    return geometry;
}

unsigned testSeed()
{
    const unsigned seed = qEnvironmentVariableIsSet("QUILLMESH_SEED")
                              ? qgetenv("QUILLMESH_SEED").toUInt()
                              : 20250607u;
    std::cout << "QUILLMESH_SEED=" << seed << std::endl;
    testing::Test::RecordProperty("seed", std::to_string(seed));
    return seed;
}

float randomBetween(std::mt19937 &random, float low, float high)
{
    // Library distributions differ between standard libraries; this does not.
    return low + (high - low) * (float(random() >> 8) / 16777216.0f);
}

Vector randomVector(std::mt19937 &random, float size)
{
    const float x = randomBetween(random, -size, size);
    const float y = randomBetween(random, -size, size);
    const float z = randomBetween(random, -size, size);
    return {x, y, z};
}

Matrix randomPlacement(std::mt19937 &random)
{
    const auto factor = [&random]() {
        return randomBetween(random, 0.3f, 3.0f);
    };
    const float x = factor();
    const float y = factor();
    const float z = factor();
    const Vector axis = randomVector(random) + Vector(0.0f, 0.0f, 1.5f);
    const float angle = randomBetween(random, -Pi, Pi);
    return Matrix::Scaling({x, y, z}) * Matrix::Rotation(axis, angle)
           * Matrix::Translation(randomVector(random, 10.0f));
}
