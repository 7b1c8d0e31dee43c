// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/curverenderer.h"

#include "host/desktop/viewport/hiddenparts.h"

namespace orvane {

namespace {

const float Rim = 1.0f;           // pixels on both sides
const float RimStrength = 0.5f;   // cover
const float FaintStrength = 0.5f; // under a new mesh, whose edges count more
const float DotsOver = 5.0f;      // pixels that dots are wider than the line

} // namespace

void CurveRenderer::Draw(const Frame &frame, const QVector<const OrvaneCurve *> &curves,
                         const OrvaneCurve *hovered, bool faint)
{
    m_plainStrength = faint ? FaintStrength : 1.0f;
    if (m_data.Update(curves, hovered) & CurveDrawData::PositionsPart)
        m_positions.Upload(m_data.Positions());
    if (m_positions.IsEmpty())
        return;
    drawWithHiddenParts(frame, [&](float strength) { drawLines(frame, strength); });
}

void CurveRenderer::drawLines(const Frame &frame, float strength)
{
    drawStrips(frame, Rim, strength);
    drawStrips(frame, 0.0f, strength);
    if (frame.options.curvePoints)
        drawPoints(frame, strength);
}

void CurveRenderer::drawStrips(const Frame &frame, float rim, float strength)
{
    m_plain.Begin();
    m_plain.Set("toClip", frame.WorldToClip(CurveLift));
    m_plain.SetPositions(m_positions);
    for (const CurveStrip &strip : m_data.Strips()) {
        frame.SetLineWidth(curveWidth(strip.look) + 2.0f * rim);
        m_plain.Set("colour", colourOf(strip, rim > 0.0f, strength));
        frame.gl.glDrawArrays(GL_LINE_STRIP, strip.first, strip.count);
    }
    m_plain.End();
}

void CurveRenderer::drawPoints(const Frame &frame, float strength)
{
    m_dots.Begin();
    m_dots.Set("toClip", frame.WorldToClip(CurveLift));
    m_dots.SetPositions(m_positions);
    for (const CurveStrip &strip : m_data.Strips()) {
        frame.SetPointSize(curveWidth(strip.look) + DotsOver);
        m_dots.Set("colour", colourOf(strip, false, strength));
        frame.gl.glDrawArrays(GL_POINTS, strip.first, strip.count);
    }
    m_dots.End();
}

QColor CurveRenderer::colourOf(const CurveStrip &strip, bool rim, float strength) const
{
    QColor colour = rim ? QColor(10, 14, 18) : curveColour(strip.look);
    const float ofLook = strip.look == CurveLook::Normal ? m_plainStrength : 1.0f;
    colour.setAlphaF(double(strength * ofLook * (rim ? RimStrength : 1.0f)));
    return colour;
}

} // namespace orvane
