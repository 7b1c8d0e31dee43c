// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/plainshaders.h"
#include "host/desktop/viewport/shownmesh.h"

#include <QVector>

namespace orvane {

struct Frame;

//! Draws the faults of meshes in red: faces as a veil, edges as lines, vertices as dots.
class FaultRenderer
{
public:
    void Draw(const Frame &frame, const QVector<ShownMesh> &meshes);

private:
    void drawFaults(const Frame &frame, const ShownMesh &mesh, float strength);

    PlainShader m_plain;
    DotShader m_dots;
};

} // namespace orvane
