// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/shader.h"
#include "host/desktop/viewport/shownmesh.h"

#include <QVector>

namespace orvane {

struct Frame;

//! Draws the faces of meshes in the light of the view: lamps go with the camera, so that a form
//! reads well from everywhere. Both sides of a face are lit; the inner one is cooler and darker.
class SurfaceRenderer
{
public:
    SurfaceRenderer();

    void Draw(const Frame &frame, const QVector<ShownMesh> &meshes);
    //! What hides, without a picture of it.
    void DrawDepths(const Frame &frame, const QVector<ShownMesh> &meshes);

private:
    void drawColours(const Frame &frame, const QVector<ShownMesh> &meshes);

    Shader m_lit;
};

} // namespace orvane
