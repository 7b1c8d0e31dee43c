// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/clientrenderer.h"

#include "host/desktop/view/curvedrawdata.h"
#include "host/desktop/viewport/frame.h"

namespace orvane {

namespace {

const float DotsOver = 4.0f; // pixels that dots are wider than the line
const float ShapeWidth = 1.5f;
const float ShapeRim = 1.0f; // pixels on both sides
const QColor RimColour(10, 14, 18, 150);

void uploadIfChanged(CardArray &array, QVector<Vector> &before, const QVector<Vector> &now)
{
    if (now == before)
        return;
    before = now;
    array.Upload(now);
}

} // namespace

void ClientRenderer::DrawLines(const Frame &frame, const QVector<ViewLine> &lines)
{
    QVector<Vector> places;
    for (const ViewLine &line : lines)
        places += line.places;
    uploadIfChanged(m_lines, m_linePlaces, places);
    int first = 0;
    for (const ViewLine &line : lines) {
        drawLine(frame, line, first);
        first += line.places.size();
    }
}

void ClientRenderer::drawLine(const Frame &frame, const ViewLine &line, int first)
{
    const Matrix toClip = frame.WorldToClip(CurveLift + 1.0);
    if (line.onTop)
        frame.gl.glDisable(GL_DEPTH_TEST);
    m_plain.Begin();
    m_plain.Set("toClip", toClip);
    m_plain.Set("colour", line.colour);
    m_plain.SetPositions(m_lines);
    frame.SetLineWidth(line.width);
    frame.gl.glDrawArrays(GL_LINE_STRIP, first, line.places.size());
    m_plain.End();
    if (line.dots || line.places.size() == 1) {
        m_dots.Begin();
        m_dots.Set("toClip", toClip);
        m_dots.Set("colour", line.colour);
        m_dots.SetPositions(m_lines);
        frame.SetPointSize(line.width + DotsOver);
        frame.gl.glDrawArrays(GL_POINTS, first, line.places.size());
        m_dots.End();
    }
    if (line.onTop)
        frame.gl.glEnable(GL_DEPTH_TEST);
}

void ClientRenderer::DrawShapes(const Frame &frame, const QVector<ViewShape> &shapes)
{
    QVector<Vector> places;
    for (const ViewShape &shape : shapes) {
        for (const QPointF &pixel : shape.outline)
            places.append(Vector(float(pixel.x()), float(pixel.y()), 0.0f));
    }
    uploadIfChanged(m_shapes, m_shapePlaces, places);
    frame.gl.glDisable(GL_DEPTH_TEST);
    m_plain.Begin();
    m_plain.Set("toClip", frame.PixelsToClip());
    m_plain.SetPositions(m_shapes);
    int first = 0;
    for (const ViewShape &shape : shapes) {
        const GLenum mode = shape.closed ? GL_LINE_LOOP : GL_LINE_STRIP;
        m_plain.Set("colour", RimColour);
        frame.SetLineWidth(ShapeWidth + 2.0f * ShapeRim);
        frame.gl.glDrawArrays(mode, first, shape.outline.size());
        m_plain.Set("colour", shape.colour);
        frame.SetLineWidth(ShapeWidth);
        frame.gl.glDrawArrays(mode, first, shape.outline.size());
        first += shape.outline.size();
    }
    m_plain.End();
    frame.gl.glEnable(GL_DEPTH_TEST);
}

} // namespace orvane
