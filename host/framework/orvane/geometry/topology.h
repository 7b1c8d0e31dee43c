// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QVector>

namespace orvane {

//! How the faces of a mesh join its vertices: all triangles, or all quads.
//! A polygon of more corners is a triangle and the fake triangles right after it, a fan about its
//! first corner. An index out of range is logged and ignored; asking for one answers -1 or false.
class ORVANE_EXPORT Topology
{
public:
    enum FaceType { Triangles, Quads };

    FaceType Type() const { return m_type; }
    bool IsQuads() const { return m_type == Quads; }
    int CornersPerFace() const { return m_type == Quads ? 4 : 3; }
    int FaceCount() const { return m_corners.size() / CornersPerFace(); }
    int VertexIndex(int face, int corner) const;
    //! Does the face continue the polygon of the face before it?
    bool IsFakeTriangle(int face) const;
    //! Texture coordinate of a corner, an index into the mesh's; -1 for none.
    int UVIndex(int face, int corner) const;
    bool HasUVs() const { return !m_uvCorners.isEmpty(); }
    //! Vertex numbers, face after face.
    const QVector<int> &Corners() const { return m_corners; }

    void SetTriangleIndex(int face, int corner, int vertex);
    void SetQuadIndex(int face, int corner, int vertex);
    void SetFakeTriangle(int face, bool fake);
    void SetUVIndex(int face, int corner, int uv);

protected:
    explicit Topology(FaceType type) : m_type(type) {}
    ~Topology() = default;

    //! New corners point to vertex 0; no new face is fake, none has texture coordinates.
    void resizeFaces(int count);
    void reserveFakes(int count);
    void setVertexLimits(int vertices, int uvs);

    FaceType m_type;
    QVector<int> m_corners;   // FaceCount() * CornersPerFace() vertex numbers
    QVector<char> m_fake;     // by face; empty while no face is fake
    QVector<int> m_uvCorners; // parallel to m_corners; empty while no corner has one

private:
    int cornerSlot(int face, int corner) const;
    void setVertex(FaceType type, int face, int corner, int vertex);

    int m_vertexLimit = 0;
    int m_uvLimit = 0;
};

} // namespace orvane
