// SPDX-License-Identifier: MIT
#include <orvane/geometry/topology.h>

#include <orvane/base/log.h>

namespace orvane {

int Topology::VertexIndex(int face, int corner) const
{
    const int slot = cornerSlot(face, corner);
    return slot < 0 ? -1 : m_corners[slot];
}

bool Topology::IsFakeTriangle(int face) const
{
    return m_type == Triangles && face >= 0 && face < m_fake.size() && m_fake[face];
}

int Topology::UVIndex(int face, int corner) const
{
    const int slot = cornerSlot(face, corner);
    return slot < 0 || m_uvCorners.isEmpty() ? -1 : m_uvCorners[slot];
}

void Topology::SetTriangleIndex(int face, int corner, int vertex)
{
    setVertex(Triangles, face, corner, vertex);
}

void Topology::SetQuadIndex(int face, int corner, int vertex)
{
    setVertex(Quads, face, corner, vertex);
}

void Topology::SetFakeTriangle(int face, bool fake)
{
    // The first face has no polygon before it to continue.
    if (m_type != Triangles || face < 0 || face >= FaceCount() || (face == 0 && fake)) {
        log(QStringLiteral("Face %1 cannot be marked as a fake triangle.").arg(face));
        return;
    }
    if (m_fake.isEmpty() && fake)
        m_fake.fill(0, FaceCount());
    if (!m_fake.isEmpty())
        m_fake[face] = fake;
}

void Topology::SetUVIndex(int face, int corner, int uv)
{
    const int slot = cornerSlot(face, corner);
    if (slot < 0 || uv < -1 || uv >= m_uvLimit) {
        log(QStringLiteral("No texture coordinate %1 for corner %2 of face %3.")
                .arg(uv)
                .arg(corner)
                .arg(face));
        return;
    }
    if (m_uvCorners.isEmpty())
        m_uvCorners.fill(-1, m_corners.size());
    m_uvCorners[slot] = uv;
}

void Topology::resizeFaces(int count)
{
    const int old = m_corners.size();
    m_corners.resize(qMax(0, count) * CornersPerFace());
    if (!m_fake.isEmpty())
        m_fake.resize(qMax(0, count));
    if (!m_uvCorners.isEmpty()) {
        m_uvCorners.resize(m_corners.size());
        for (int i = old; i < m_uvCorners.size(); ++i)
            m_uvCorners[i] = -1;
    }
}

void Topology::reserveFakes(int count)
{
    if (count > 0 && m_fake.isEmpty())
        m_fake.fill(0, FaceCount());
}

void Topology::setVertexLimits(int vertices, int uvs)
{
    m_vertexLimit = vertices;
    m_uvLimit = uvs;
}

int Topology::cornerSlot(int face, int corner) const
{
    const int corners = CornersPerFace();
    if (face < 0 || corner < 0 || corner >= corners)
        return -1;
    // Asked for each corner of a mesh: a product is had sooner than the face count, a quotient.
    const qint64 slot = qint64(face) * corners + corner;
    return slot < m_corners.size() ? int(slot) : -1;
}

void Topology::setVertex(FaceType type, int face, int corner, int vertex)
{
    const int slot = cornerSlot(face, corner);
    if (type != m_type || slot < 0 || vertex < 0 || vertex >= m_vertexLimit) {
        log(QStringLiteral("No vertex %1 for corner %2 of face %3.")
                .arg(vertex)
                .arg(corner)
                .arg(face));
        return;
    }
    m_corners[slot] = vertex;
}

} // namespace orvane
