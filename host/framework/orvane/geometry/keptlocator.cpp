// SPDX-License-Identifier: MIT
#include <orvane/geometry/keptlocator.h>

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/mesh.h>

namespace orvane {

namespace {

Matrix placementOf(const Mesh &mesh)
{
    return mesh.Holder() ? mesh.Holder()->Placement()->WorldMatrix() : Matrix();
}

// Arrays are shared with the mesh: one that changes gets new arrays while we hold the old ones.
template <typename T>
bool isSameArray(const QVector<T> &ours, const QVector<T> &theirs)
{
    return ours.constData() == theirs.constData() && ours.size() == theirs.size();
}

} // namespace

KeptLocator::KeptLocator(const Mesh &mesh)
    : m_positions(mesh.Positions()),
      m_corners(mesh.Corners()),
      m_placement(placementOf(mesh)),
      m_locator(mesh)
{}

bool KeptLocator::IsCurrent(const Mesh &mesh) const
{
    return isSameArray(m_positions, mesh.Positions()) && isSameArray(m_corners, mesh.Corners())
           && placementOf(mesh) == m_placement;
}

} // namespace orvane
