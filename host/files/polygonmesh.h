// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/mesh.h>

#include <QString>
#include <QVector>

namespace orvane {

class Geometry;

//! What a mesh file says: polygons over places. The form between files and meshes of the scene.
struct PolygonMesh
{
    void addCorner(int vertex, int uv) // uv: -1 for none
    {
        polygons.corners.append(vertex);
        polygons.uvCorners.append(uv);
    }
    void endPolygon() { polygons.firstCorner.append(polygons.corners.size()); }

    QString name;
    QVector<Vector> positions;
    QVector<Vector> normals; // parallel to positions, each of length 1; empty where not all known
    QVector<UV> uvs;
    PolygonList polygons = {{}, {0}, {}, {}}; // firstFace is not used, uvCorners always is
};

inline int polygonCount(const PolygonMesh &mesh)
{
    return mesh.polygons.firstCorner.size() - 1;
}

//! Visits the three vertices of each triangle of the polygons' fans about their first corners.
template <typename Visit>
void forEachTriangle(const PolygonMesh &mesh, Visit visit)
{
    for (int p = 0; p < polygonCount(mesh); ++p) {
        const int *corner = mesh.polygons.Corners(p);
        for (int i = 2; i < mesh.polygons.CornerCount(p); ++i)
            visit(corner[0], corner[i - 1], corner[i]);
    }
}

//! Makes places of equal coordinates one vertex, and equal texture coordinates one.
void joinEqualPlaces(PolygonMesh *mesh);

//! Drops polygons of fewer than three different corners. How many it were.
int dropFlatPolygons(PolygonMesh *mesh);

//! Leaves out vertices of no polygon; the others keep their order.
void dropLooseVertices(PolygonMesh *mesh);

//! Gives every polygon the other side.
void reversePolygons(PolygonMesh *mesh);

//! Splits vertices where corners differ in texture coordinates, so that uvs become parallel to
//! positions. A corner without gets (0, 0). Nothing happens to a mesh without any.
void splitAtSeams(PolygonMesh *mesh);

//! A new geometry of one level, owned by the caller. Every index is in range.
Geometry *geometryOf(const PolygonMesh &mesh);

//! The current level of the geometry in world space, without vertices of no face.
PolygonMesh polygonMeshOf(const Geometry &geometry);

} // namespace orvane
