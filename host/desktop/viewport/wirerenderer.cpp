// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/wirerenderer.h"

#include "host/desktop/viewport/hiddenparts.h"
#include "host/desktop/viewport/meshoncard.h"

namespace orvane {

namespace {

const double WireLift = 1.5;      // pixels above its faces
const double DenseEdge = 1.5;     // pixels: shorter edges are faint, or all would be black
const double CoarseEdge = 9.0;    // pixels: longer ones are as strong as can be
const double FaintestEdge = 0.16; // fraction of the full strength
const QColor Edge(18, 20, 24, 150);
const QColor NewEdge(12, 20, 32, 235);

double strengthByLength(double pixels)
{
    const double part = (pixels - DenseEdge) / (CoarseEdge - DenseEdge);
    return qBound(FaintestEdge, part, 1.0);
}

} // namespace

void WireRenderer::Draw(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    for (const ShownMesh &mesh : meshes) {
        if (frame.options.wireframe || mesh.role == MeshRole::Over)
            drawWithHiddenParts(frame, [&](float strength) { drawEdges(frame, mesh, strength); });
    }
}

void WireRenderer::drawEdges(const Frame &frame, const ShownMesh &mesh, float strength)
{
    const bool isNew = mesh.role == MeshRole::Over;
    QColor colour = isNew ? NewEdge : Edge;
    colour.setAlphaF(colour.alphaF() * double(strength) * strengthByLength(mesh.edgePixels));
    frame.SetLineWidth(isNew ? 1.5f : 1.0f);
    m_shader.Begin();
    m_shader.Set("toClip", mesh.toWorld * frame.WorldToClip(mesh.lift + WireLift));
    m_shader.Set("colour", colour);
    m_shader.SetPositions(mesh.card->positions);
    mesh.card->wireframe.Bind();
    frame.gl.glDrawElements(GL_LINES, mesh.card->wireframe.Count(), GL_UNSIGNED_INT, nullptr);
    m_shader.End();
}

} // namespace orvane
