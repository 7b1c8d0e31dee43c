// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {

class Mesh;
struct MeshFault;

//! The arrays that a renderer uploads to draw a mesh, in the frame of its geometry: a mesh that is
//! moved as a whole uploads nothing. Indices are never negative. It shares its arrays with the
//! mesh where it can and copies only what is not there. A vertex that the mesh does not have, left
//! behind by one that shrank, costs its faces.
class MeshDrawData
{
public:
    //! Parts to upload anew.
    enum Part {
        PositionsPart = 0x1,
        NormalsPart = 0x2,
        FacesPart = 0x4 //!< the triangles and both lists of edges
    };

    const QVector<Vector> &Positions() const { return m_positions; }
    //! By vertex, for smooth shading: the mesh's own, each of length 1; where it has none, from
    //! the faces around. Zero at a vertex without any surface.
    const QVector<Vector> &Normals() const { return m_normals; }
    //! Three vertices each: triangles as they are, a polygon of fake ones as its fan about its
    //! first corner, a quad cut between its corners 0 and 2.
    const QVector<int> &Triangles() const { return m_triangles; }
    //! Two vertices each: the edges of the polygons, none inside a polygon.
    const QVector<int> &Wireframe() const { return m_wireframe; }
    //! The part of the wireframe that has one polygon side only.
    const QVector<int> &Boundary() const { return m_boundary; }

    //! Brings the arrays in line with a mesh whose own Update is done. Answers the parts that
    //! differ from before, or-ed. Free of cost while the mesh stays the same, but for its normals,
    //! which are compared one by one.
    int Update(const Mesh &mesh);

private:
    bool updateNormals(const Mesh &mesh);
    void updateFaces(const Mesh &mesh);
    void fillMissingNormals();

    QVector<Vector> m_positions;
    QVector<Vector> m_givenNormals; // as the mesh had them
    QVector<Vector> m_normals;
    QVector<int> m_corners;        // as the mesh had them
    QVector<int> m_polygonCorners; // as the mesh had them
    QVector<int> m_triangles;
    QVector<int> m_wireframe;
    QVector<int> m_boundary;
};

//! Triangles for flat shading: every corner is a vertex of its own and has the normal of its
//! polygon, so that a polygon of fakes looks like one face.
struct FlatDrawData
{
    QVector<Vector> positions; // three for each triangle
    QVector<Vector> normals;   // parallel to positions; zero on a polygon without area
};

FlatDrawData flatDrawData(const Mesh &mesh);

//! Faults as plain geometry, in the frame of the mesh's geometry.
struct FaultDrawData
{
    bool IsEmpty() const { return points.isEmpty() && lines.isEmpty() && triangles.isEmpty(); }

    QVector<Vector> points;    // faulty vertices, and the corners of what has no size to be seen
    QVector<Vector> lines;     // two each: faulty edges, outlines of faulty polygons
    QVector<Vector> triangles; // three each: faulty polygons
};

//! faults: as MeshChecker::Find gave them for the mesh as it is now; a place it no longer has is
//! left out.
FaultDrawData faultDrawData(const Mesh &mesh, const QVector<MeshFault> &faults);

} // namespace orvane
