// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacelocator.h>
#include <orvane/math/matrix.h>

#include <QVector>

namespace orvane {

//! The locator of a mesh, with what it was made from.
class KeptLocator
{
public:
    explicit KeptLocator(const Mesh &mesh);

    //! Would a new one be the same? Costs no look at the vertices.
    bool IsCurrent(const Mesh &mesh) const;
    const SurfaceLocator &Locator() const { return m_locator; }

private:
    QVector<Vector> m_positions;
    QVector<int> m_corners;
    Matrix m_placement;
    SurfaceLocator m_locator;
};

} // namespace orvane
