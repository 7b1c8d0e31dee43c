// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QVector>

namespace orvane {

class Topology;

//! The polygons of a mesh as people see them: quads as they are, a triangle joined with the fake
//! ones after it. Polygon p has the corners from firstCorner[p] up to firstCorner[p + 1].
struct ORVANE_EXPORT PolygonList
{
    int Count() const { return firstFace.size(); }
    int CornerCount(int polygon) const { return firstCorner[polygon + 1] - firstCorner[polygon]; }
    const int *Corners(int polygon) const { return corners.constData() + firstCorner[polygon]; }

    QVector<int> firstFace;   // by polygon: the first of its mesh faces
    QVector<int> firstCorner; // by polygon, and the end
    QVector<int> corners;     // vertex numbers
    QVector<int> uvCorners;   // parallel to corners; empty where the mesh has none
};

//! An edge of polygons, vertex a below vertex b.
struct MeshEdge
{
    int a = 0;
    int b = 0;
    int polygons = 0; // how many polygon sides run along it, in either direction
};

ORVANE_EXPORT PolygonList polygonsOf(const Topology &topology);

//! Each edge once, ascending by a, then b. Sides from a vertex to itself, and to one that is not
//! below vertexCount, are left out.
//! Linear in the mesh where vertices have a bounded number of edges.
ORVANE_EXPORT QVector<MeshEdge> edgesOf(const PolygonList &polygons, int vertexCount);

} // namespace orvane
