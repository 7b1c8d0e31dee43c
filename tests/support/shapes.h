// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/topology.h>
#include <orvane/math/matrix.h>

#include <QString>
#include <QVector>

#include <random>

namespace orvane {
class Geometry;
class SubdivisionLevel;
} // namespace orvane

//! Small meshes for tests. Each is new and owned by the caller until addToScene or a geometry
//! takes it; face and vertex normals, bounds, polygons and edges are up to date. Faces run
//! counter-clockwise seen from outside, flat shapes face +z.

//! Faces one after the other in corners: three vertex numbers each, or four.
orvane::SubdivisionLevel *meshOf(orvane::Topology::FaceType type,
                                 const QVector<orvane::Vector> &positions,
                                 const QVector<int> &corners);

//! (0, 0, 0), (side, 0, 0), (0, side, 0).
orvane::SubdivisionLevel *singleTriangle(float side = 1.0f);
//! A square from (0, 0, 0) to (side, side, 0).
orvane::SubdivisionLevel *singleQuad(float side = 1.0f);
//! Unit squares from (0, 0, 0) to (columns, rows, 0). Vertex (column, row) has the number
//! row * (columns + 1) + column; face (column, row) the number row * columns + column.
orvane::SubdivisionLevel *gridOfQuads(int columns, int rows);
//! The same, each square cut along its rising diagonal into two triangles.
orvane::SubdivisionLevel *gridOfTriangles(int columns, int rows);
//! Corners at the origin and at length along each axis.
orvane::SubdivisionLevel *tetrahedron(float length = 1.0f);
//! Six quads about the origin.
orvane::SubdivisionLevel *cube(float side = 1.0f);
//! Triangles about the origin, radius 1, poles on the z axis. At least 2 rings, 3 segments.
orvane::SubdivisionLevel *sphere(int rings, int segments);
//! One polygon of n corners in the plane z = 0, as a triangle and fake ones. Radius 1.
orvane::SubdivisionLevel *polygonOfFakes(int corners);
//! Faces between random vertices of the cube from -1 to 1, all corners of a face different.
orvane::SubdivisionLevel *randomMesh(orvane::Topology::FaceType type, int vertices, int faces,
                                     std::mt19937 &random);
//! A bumpy sheet of quads over [0, columns] x [0, rows] that is not flat anywhere.
orvane::SubdivisionLevel *bumpySheet(int columns, int rows, std::mt19937 &random);

//! Puts the mesh into a new geometry of the kernel's scene, which owns it from then on.
orvane::Geometry *addToScene(orvane::SubdivisionLevel *mesh,
                             const QString &name = QStringLiteral("Shape"),
                             const orvane::Matrix &placement = orvane::Matrix());

//! The seed of a test on random input: QUILLMESH_SEED when set, else always the same. Printed.
unsigned testSeed();
//! A point of the cube from -size to size, the same on every machine for one seed.
orvane::Vector randomVector(std::mt19937 &random, float size = 1.0f);
//! A number from low to high, the same on every machine for one seed.
float randomBetween(std::mt19937 &random, float low, float high);
//! A turn about a random axis, a different scale along each axis, and a shift.
orvane::Matrix randomPlacement(std::mt19937 &random);
