// SPDX-License-Identifier: MIT
#include <orvane/geometry/surfacepoint.h>

#include <orvane/base/nodetable.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <typeinfo>

namespace orvane {

namespace {

// How much each corner of a face counts at a local position.
struct CornerWeights
{
    float weight[4];
};

CornerWeights cornerWeights(bool quad, float u, float v)
{
    if (!quad)
        return {{1.0f - u - v, u, v, 0.0f}};
    if (u >= v)
        return {{1.0f - u, u - v, v, 0.0f}};
    return {{1.0f - v, 0.0f, u, v - u}};
}

Vector faceNormal(const Mesh &mesh, int face)
{
    const auto corner = [&](int i) {
        return mesh.WorldVertexPosition(mesh.VertexIndex(face, i));
    };
    const Vector area = mesh.IsQuads() ? (corner(2) - corner(0)) & (corner(3) - corner(1))
                                       : (corner(1) - corner(0)) & (corner(2) - corner(0));
    return Normalized(area);
}

} // namespace

SurfacePoint::SurfacePoint(const orvane::Mesh &mesh, int faceIndex, float u, float v)
    : m_meshID(mesh.ID()), m_faceIndex(faceIndex), m_u(u), m_v(v)
{
    if (faceIndex < 0 || faceIndex >= mesh.FaceCount())
        return;
    const CornerWeights weights = cornerWeights(mesh.IsQuads(), u, v);
    for (int i = 0; i < mesh.CornersPerFace(); ++i)
        m_worldPosition +=
            mesh.WorldVertexPosition(mesh.VertexIndex(faceIndex, i)) * weights.weight[i];
}

orvane::Mesh *SurfacePoint::Mesh() const
{
    if (m_meshID == 0)
        return nullptr;
    Node *node = NodeTable::Instance().Find(m_meshID);
    // What nearly all are, for a fraction of the cost of a cast up and down the classes.
    if (node && typeid(*node) == typeid(SubdivisionLevel))
        return static_cast<SubdivisionLevel *>(node);
    return dynamic_cast<orvane::Mesh *>(node);
}

bool SurfacePoint::IsOnValidFace() const
{
    const orvane::Mesh *mesh = Mesh();
    return mesh && m_faceIndex >= 0 && m_faceIndex < mesh->FaceCount();
}

Vector SurfacePoint::WorldNormal() const
{
    const orvane::Mesh *mesh = Mesh();
    if (!mesh || m_faceIndex < 0 || m_faceIndex >= mesh->FaceCount())
        return {};
    const CornerWeights weights = cornerWeights(mesh->IsQuads(), m_u, m_v);
    Vector normal;
    for (int i = 0; i < mesh->CornersPerFace(); ++i)
        normal += mesh->WorldVertexNormal(mesh->VertexIndex(m_faceIndex, i)) * weights.weight[i];
    if (normal.LengthSquared() > 0.0f)
        return normal.Normalize();
    return faceNormal(*mesh, m_faceIndex);
}

} // namespace orvane
