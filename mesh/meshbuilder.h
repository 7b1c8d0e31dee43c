// SPDX-License-Identifier: MIT
#pragma once

#include "mesh/facelist.h"

#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {
class Mesh;
}

//! Collects vertices and faces, decides which faces stay whole, and makes the host mesh of them.
//! Whoever fills it puts positions and normals in before the faces that use them.
class MeshBuilder
{
public:
    MeshBuilder();
    MeshBuilder(const MeshBuilder &) = default;
    MeshBuilder &operator=(const MeshBuilder &) = default;
    virtual ~MeshBuilder();

    //! Takes a face of vertex numbers. Triangles, quads and convex faces of up to 9 corners stay
    //! whole, others are split into triangles that look where their vertex normals look.
    //! Fewer than 3 corners are ignored.
    void addPolygon(const QVector<int> &face);

    //! Does a corner of the face turn against the first one?
    bool isConcave(const QVector<int> &face) const;

    //! Mean normal of the corners that turn as the first one does; the other way round when the
    //! first is the only one to turn its way. Of length 1, clockwise faces look at the viewer.
    orvane::Vector polygonNormal(const QVector<int> &face) const;

    //! The mesh "Sketched Mesh" of all faces, of quads when all are, else of triangles, checked
    //! and accepted; owned by the caller. Null when there is no face, one of fewer than
    //! 3 corners, or the mesh was discarded for its faults.
    orvane::Mesh *createMesh() const;

    FaceList faces;                    // n >= 3 vertex numbers each, in order of acceptance
    QVector<orvane::Vector> positions; // by vertex number, world space
    QVector<orvane::Vector> normals;   // parallel to positions; zero = not known

private:
    orvane::Vector cornerNormal(const QVector<int> &face, int corner) const;
    void addTessellated(const QVector<int> &face);
    void fillFaces(orvane::Mesh &mesh) const;
};
