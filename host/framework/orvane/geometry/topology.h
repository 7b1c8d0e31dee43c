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
    int VertexIndex(int face, int corner) const
    {
        const int slot = cornerSlot(face, corner);
        return slot < 0 ? -1 : m_corners[slot];
    }
    //! Does the face continue the polygon of the face before it?
    bool IsFakeTriangle(int face) const
    {
        return m_type == Triangles && face >= 0 && face < m_fake.size() && m_fake[face];
    }
    bool HasFakeTriangles() const { return m_fake.count(0) < m_fake.size(); }
    //! Texture coordinate of a corner, an index into the mesh's; -1 for none.
    int UVIndex(int face, int corner) const;
    //! Parallel to Corners; empty while no corner has one.
    const QVector<int> &UVCorners() const { return m_uvCorners; }
    bool HasUVs() const { return !m_uvCorners.isEmpty(); }
    //! Vertex numbers, face after face.
    const QVector<int> &Corners() const { return m_corners; }

    void SetTriangleIndex(int face, int corner, int vertex)
    {
        setVertex(Triangles, face, corner, vertex);
    }
    void SetQuadIndex(int face, int corner, int vertex) { setVertex(Quads, face, corner, vertex); }
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
    QVector<int> m_corners;     // FaceCount() * CornersPerFace() vertex numbers
    QVector<char> m_fake;       // by face; empty while no face is fake
    QVector<int> m_uvCorners;   // parallel to m_corners; empty while no corner has one
    bool m_facesChanged = true; // or what limits them, since whoever derives from it cleared it

private:
    // Asked for each corner of a mesh, so in line, and without the face count, a quotient.
    int cornerSlot(int face, int corner) const
    {
        const int corners = CornersPerFace();
        if (face < 0 || corner < 0 || corner >= corners)
            return -1;
        const qint64 slot = qint64(face) * corners + corner;
        return slot < m_corners.size() ? int(slot) : -1;
    }
    void setVertex(FaceType type, int face, int corner, int vertex)
    {
        const int slot = cornerSlot(face, corner);
        if (type != m_type || slot < 0 || vertex < 0 || vertex >= m_vertexLimit) {
            refuseVertex(face, corner, vertex);
            return;
        }
        m_corners[slot] = vertex;
        m_facesChanged = true;
    }
    static void refuseVertex(int face, int corner, int vertex);

    int m_vertexLimit = 0;
    int m_uvLimit = 0;
};

} // namespace orvane
