// SPDX-License-Identifier: MIT
#include "host/desktop/tools/cuttercache.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/mesh.h>

namespace orvane {

namespace {

Matrix placementOf(const Mesh &mesh)
{
    return mesh.Holder() ? mesh.Holder()->Placement()->WorldMatrix() : Matrix();
}

// Holding the array makes its owner take a new one with any change.
template <typename T>
bool isSameArray(const QVector<T> &a, const QVector<T> &b)
{
    return a.constData() == b.constData() && a.size() == b.size();
}

} // namespace

CutterCache::CutterCache() = default;
CutterCache::~CutterCache() = default;

const MeshCutter &CutterCache::CutterOf(const Mesh &mesh)
{
    if (isCurrent(mesh))
        return *m_cutter;
    m_cutter = std::make_unique<MeshCutter>(mesh);
    m_mesh = &mesh;
    m_positions = mesh.Positions();
    m_corners = mesh.Corners();
    m_placement = placementOf(mesh);
    return *m_cutter;
}

bool CutterCache::isCurrent(const Mesh &mesh) const
{
    return m_cutter && m_mesh == &mesh && isSameArray(m_positions, mesh.Positions())
           && isSameArray(m_corners, mesh.Corners()) && m_placement == placementOf(mesh);
}

} // namespace orvane
