// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/faultrenderer.h"

#include "host/desktop/viewport/hiddenparts.h"
#include "host/desktop/viewport/meshoncard.h"

namespace orvane {

namespace {

const double FaultLift = 4.0; // pixels above the faces: over their edges and curves
const float LineWidth = 3.0f; // pixels
const float DotSize = 9.0f;   // pixels

QColor red(float alpha)
{
    return QColor::fromRgbF(0.95, 0.16, 0.14, double(alpha));
}

} // namespace

void FaultRenderer::Draw(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    for (const ShownMesh &mesh : meshes)
        drawWithHiddenParts(frame, [&](float strength) { drawFaults(frame, mesh, strength); });
}

void FaultRenderer::drawFaults(const Frame &frame, const ShownMesh &mesh, float strength)
{
    const Matrix toClip = mesh.toWorld * frame.WorldToClip(mesh.lift + FaultLift);
    frame.SetLineWidth(LineWidth);
    frame.SetPointSize(DotSize);
    m_plain.Begin();
    m_plain.Set("toClip", toClip);
    m_plain.Set("colour", red(0.45f * strength));
    m_plain.SetPositions(mesh.card->faultTriangles);
    frame.gl.glDrawArrays(GL_TRIANGLES, 0, mesh.card->faultTriangles.Count());
    m_plain.Set("colour", red(strength));
    m_plain.SetPositions(mesh.card->faultLines);
    frame.gl.glDrawArrays(GL_LINES, 0, mesh.card->faultLines.Count());
    m_plain.End();
    m_dots.Begin();
    m_dots.Set("toClip", toClip);
    m_dots.Set("colour", red(strength));
    m_dots.SetPositions(mesh.card->faultPoints);
    frame.gl.glDrawArrays(GL_POINTS, 0, mesh.card->faultPoints.Count());
    m_dots.End();
}

} // namespace orvane
