// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/plainshaders.h"
#include "host/desktop/viewport/shownmesh.h"

#include <QVector>

namespace orvane {

struct Frame;

//! Draws the edges of polygons, none inside a polygon. Those of a new mesh are always drawn.
class WireRenderer
{
public:
    void Draw(const Frame &frame, const QVector<ShownMesh> &meshes);

private:
    void drawEdges(const Frame &frame, const ShownMesh &mesh, float strength);

    PlainShader m_shader;
};

} // namespace orvane
