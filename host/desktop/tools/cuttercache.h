// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/meshcutter.h"

#include <orvane/math/matrix.h>

#include <memory>

namespace orvane {

//! The cutter of the mesh that was cut last, made anew when the mesh or its place has changed.
class CutterCache
{
public:
    CutterCache();
    ~CutterCache();

    const MeshCutter &CutterOf(const Mesh &mesh);

private:
    bool isCurrent(const Mesh &mesh) const;

    std::unique_ptr<MeshCutter> m_cutter;
    const Mesh *m_mesh = nullptr; // compared only
    QVector<Vector> m_positions;  // as they were cut; shared with the mesh
    QVector<int> m_corners;       // as they were cut; shared with the mesh
    Matrix m_placement;
};

} // namespace orvane
