// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>
#include <orvane/geometry/polygons.h>
#include <orvane/geometry/topology.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <memory>

namespace orvane {

class Geometry;
class KeptLocator;
class SurfaceLocator;

//! A texture coordinate.
struct UV
{
    float u = 0.0f;
    float v = 0.0f;
};

//! Faces, vertices, normals and texture coordinates. Positions and normals are stored in the
//! frame of the geometry that holds the mesh; functions named World... answer world space.
class ORVANE_EXPORT Mesh : public Node, public Topology
{
public:
    explicit Mesh(FaceType type);
    ~Mesh() override;

    int VertexCount() const { return m_positions.size(); }
    int UVCount() const { return m_uvs.size(); }
    //! Out of range answers zero.
    Vector VertexPosition(int vertex) const { return m_positions.value(vertex); }
    Vector VertexNormal(int vertex) const { return m_normals.value(vertex); }
    Vector FaceNormal(int face) const { return m_faceNormals.value(face); }
    UV TextureCoordinate(int uv) const { return m_uvs.value(uv); }
    const QVector<Vector> &Positions() const { return m_positions; }

    Vector WorldVertexPosition(int vertex) const;
    //! Of length 1, or zero where the mesh has none.
    Vector WorldVertexNormal(int vertex) const;
    //! World position of a corner of a triangle, of a quad; zero when out of range.
    Vector TriangleVertexPosition(int face, int corner) const;
    Vector QuadVertexPosition(int face, int corner) const;

    //! The geometry that lists this mesh as a level; null while none does.
    Geometry *Holder() const { return m_holder; }
    bool IsChanged() const { return m_changed; }
    //! As of the last Update, in the frame of the geometry.
    const AxisAlignedBoundingBox &Bounds() const { return m_bounds; }
    const PolygonList &Polygons() const { return m_polygons; }
    //! Found at the first asking, as many meshes are never asked for them.
    const QVector<MeshEdge> &Edges() const;
    //! Are polygons and edges those of the faces as they are now?
    bool IsUpdated() const { return !m_facesChanged; }

    //! Finds places on the mesh where it is now. Made at the first asking, and anew when the mesh
    //! has changed or moved since; good until then.
    const SurfaceLocator &Locator() const;

    virtual void SetFaceCount(int count);
    virtual void SetVertexCount(int count);
    //! Makes room for marks; SetFakeTriangle sets them.
    virtual void SetFakeTriangleCount(int count);
    virtual void SetUVCount(int count);

    void SetVertexPosition(int vertex, const Vector &position)
    {
        if (isVertex(vertex))
            m_positions[vertex] = position;
    }
    void SetVertexNormal(int vertex, const Vector &normal)
    {
        if (isVertex(vertex))
            m_normals[vertex] = normal;
    }
    void SetTextureCoordinate(int uv, const UV &coordinate);

    //! Computes face normals, and vertex normals too unless the ones that were set are to stay.
    //! A vertex normal is the sum of its faces' normals, each weighted by the angle of its corner.
    virtual void RecomputeNormals(bool keepVertexNormals);
    //! Brings bounds and, with topology, polygons and edges up to date. level: 0, this mesh alone.
    virtual void Update(bool topology, int level);
    //! The mesh's own mark, not the scene's.
    virtual void SetChanged(bool changed);

    void Serialize(Stream &stream) override;
    //! Are all positions and normals finite?
    bool CheckValidity() const override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    friend class Geometry;

    bool isVertex(int vertex) const
    {
        return (vertex >= 0 && vertex < VertexCount()) || refuseVertex(vertex);
    }
    bool refuseVertex(int vertex) const;
    Vector cornerPosition(FaceType type, int face, int corner) const;
    Vector placeAt(int slot) const { return m_positions.value(m_corners.at(slot)); }
    void setFaceNormals(int begin, int end, Vector *faceNormals) const;
    void setVertexNormals(int begin, int end, Vector *normals) const;
    bool cornersInRange() const;

    QVector<Vector> m_positions;
    QVector<Vector> m_normals; // by vertex; zero = not known
    QVector<Vector> m_faceNormals;
    QVector<UV> m_uvs;
    AxisAlignedBoundingBox m_bounds;
    PolygonList m_polygons;
    int m_edgeLimit = 0;              // vertices as of the last Update
    mutable bool m_edgesFound = true; // of m_polygons
    mutable QVector<MeshEdge> m_edges;
    mutable std::unique_ptr<KeptLocator> m_locator; // null until asked for
    Geometry *m_holder = nullptr;                   // owns this mesh
    bool m_changed = false;
};

} // namespace orvane
