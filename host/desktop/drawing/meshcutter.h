// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacepoint.h>

#include <QVector>

namespace orvane {

class Mesh;

struct Plane
{
    Vector point;
    Vector normal; // of any length but zero
};

//! Where a plane cuts a mesh: points on edges of its faces and on the diagonals of its quads,
//! joined by straight stretches inside the faces. The last point of a closed one is its first.
struct SectionLine
{
    QVector<SurfacePoint> points;
    bool closed = false;
};

QVector<Vector> placesOf(const SectionLine &line);

//! Cuts a mesh with planes, in world space. Built once per mesh; a mesh that changes or moves
//! needs a new one.
class MeshCutter
{
public:
    explicit MeshCutter(const Mesh &mesh);

    //! The lines of the cut, open ones first, each beginning at its first face in face order.
    //! A vertex exactly on the plane counts as above it (where the normal points): what lies in the
    //! plane is no cut, its border is one where the surface goes on below. So every face is cut
    //! in one stretch or not at all, and no stretch is missed or met twice. A surface without open
    //! edges has only closed lines. Linear in the mesh.
    QVector<SectionLine> Cut(const Plane &plane) const;

private:
    struct Triangle
    {
        int face;
        int corner[3]; // of the face
        int vertex[3];
    };
    class Tracer;

    const Mesh &m_mesh;
    QVector<Vector> m_places; // by vertex, world space
    QVector<Triangle> m_triangles;
};

} // namespace orvane
