// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/polygons.h>
#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {
class Mesh;
} // namespace orvane

//! A triangle to draw: vertex numbers, a normal at each corner, and the polygon it is part of.
struct SurfaceTriangle
{
    int vertex[3];
    orvane::Vector normal[3]; // of length 1, or zero where the triangle has no area
    int polygon;
};

//! What of a mesh can be drawn, in world space. Polygons with a vertex that is not finite, or
//! too far out to be drawn, are left out.
struct Surface
{
    QVector<orvane::Vector> positions; // by vertex of the mesh
    QVector<orvane::Vector> normals;   // by vertex, of length 1; zero = not known
    orvane::PolygonList polygons;
    QVector<SurfaceTriangle> triangles;
};

//! How corner normals are made.
enum class SurfaceLook {
    Smooth, //!< rounded, but sharp where faces meet at more than a crease
    Facets, //!< one normal for all of a polygon
};

//! Can a picture show a point there: is it finite, and small enough to compute with?
bool isDrawable(const orvane::Vector &point);

Surface surfaceOf(const orvane::Mesh &mesh, SurfaceLook look);
