// SPDX-License-Identifier: MIT
#include <orvane/geometry/topology.h>

#include <orvane/base/log.h>

namespace orvane {

int Topology::UVIndex(int face, int corner) const
{
    const int slot = cornerSlot(face, corner);
    return slot < 0 || m_uvCorners.isEmpty() ? -1 : m_uvCorners[slot];
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
    m_facesChanged = true;
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
    m_facesChanged = true;
}

void Topology::resizeFaces(int count)
{
    m_facesChanged = true;
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
    m_facesChanged = true;
    m_vertexLimit = vertices;
    m_uvLimit = uvs;
}

void Topology::refuseVertex(int face, int corner, int vertex)
{
    log(QStringLiteral("No vertex %1 for corner %2 of face %3.").arg(vertex).arg(corner).arg(face));
}

} // namespace orvane
