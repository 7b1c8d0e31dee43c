// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>
#include <orvane/math/vector.h>

namespace orvane {

class Mesh;

//! A point on a face of a mesh. It names its mesh by number: while no mesh of the scene has that
//! number it is bound to none, and it binds again when undo or redo brings the mesh back.
//! Local position on a triangle: p0 + u (p1 - p0) + v (p2 - p0). On a quad, of its halves along
//! p0-p2: p0 + u (p1 - p0) + v (p2 - p1) where u >= v, else p0 + v (p3 - p0) + u (p2 - p3).
class ORVANE_EXPORT SurfacePoint
{
public:
    //! Bound to no mesh, at the origin.
    SurfacePoint() = default;
    //! On a mesh of the scene; the world position is taken now. A face out of range is kept: the
    //! point then lies on no valid face, at the origin.
    SurfacePoint(const orvane::Mesh &mesh, int faceIndex, float u, float v);

    //! Null while it is bound to none.
    orvane::Mesh *Mesh() const;
    int FaceIndex() const { return m_faceIndex; }
    float U() const { return m_u; }
    float V() const { return m_v; }
    //! Has a mesh, and a face of it?
    bool IsOnValidFace() const;

    //! As cached when the point was bound or moved.
    const Vector &WorldPosition() const { return m_worldPosition; }
    //! Of the surface, of length 1: vertex normals weighted by the local position, or the face's
    //! where they cancel out. Zero off any valid face.
    Vector WorldNormal() const;

    //! Moves the cached world position; face and local position stay.
    void Shift(const Vector &offset) { m_worldPosition += offset; }

private:
    int m_meshID = 0; // node number; 0 = none
    int m_faceIndex = -1;
    float m_u = 0.0f;
    float m_v = 0.0f;
    Vector m_worldPosition;
};

} // namespace orvane
