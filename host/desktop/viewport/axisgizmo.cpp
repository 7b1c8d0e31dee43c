// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/axisgizmo.h"

#include "host/desktop/viewport/frame.h"

#include <algorithm>

namespace orvane {

namespace {

const float ArmLength = 38.0f;  // pixels
const float FromCorner = 62.0f; // pixels, of the middle
const float DotSize = 20.0f;    // pixels
const int FirstOfLetter[] = {0, 4, 10, 16};
const QColor AxisColours[] = {{232, 92, 86}, {134, 200, 84}, {88, 150, 246}};
const QColor LetterColour(24, 25, 28);

Matrix placedAt(const Frame &frame, const Vector &pixel, const Matrix &shape)
{
    return shape * Matrix::Translation(pixel) * frame.PixelsToClip();
}

// World directions to pixels, y down, depth left out.
Matrix turnOf(const Frame &frame)
{
    Matrix turn = frame.camera.ViewMatrix();
    turn.SetRow(3, Vector());
    return turn * Matrix::Scaling(Vector(ArmLength, -ArmLength, 0.0f));
}

Vector axisVector(int axis)
{
    return Matrix().Row(axis);
}

} // namespace

AxisGizmo::AxisGizmo()
{
    QVector<Vector> arms;
    for (int axis = 0; axis < 3; ++axis)
        arms << Vector() << axisVector(axis);
    m_arms.Upload(arms);
    const float x = 3.2f; // half of a letter's width and height, pixels
    const float y = 4.2f;
    m_letters.Upload(QVector<Vector>{{-x, -y, 0},
                                     {x, y, 0},
                                     {-x, y, 0},
                                     {x, -y, 0}, // X
                                     {-x, -y, 0},
                                     {0, 0, 0},
                                     {x, -y, 0},
                                     {0, 0, 0},
                                     {0, 0, 0},
                                     {0, y, 0}, // Y
                                     {-x, -y, 0},
                                     {x, -y, 0},
                                     {x, -y, 0},
                                     {-x, y, 0},
                                     {-x, y, 0},
                                     {x, y, 0}}); // Z
}

void AxisGizmo::Draw(const Frame &frame)
{
    const Vector back = frame.camera.BackAxis();
    const float depths[] = {back.x, back.y, back.z};
    int order[] = {0, 1, 2};
    std::sort(order, order + 3, [&depths](int a, int b) { return depths[a] < depths[b]; });
    frame.gl.glDisable(GL_DEPTH_TEST);
    for (int axis : order)
        drawAxis(frame, axis);
    frame.gl.glEnable(GL_DEPTH_TEST);
}

void AxisGizmo::drawAxis(const Frame &frame, int axis)
{
    const Matrix turn = turnOf(frame);
    const Vector middle(float(frame.camera.ViewportSize().width()) - FromCorner, FromCorner, 0.0f);
    const Vector tip = middle + turn.Transform(axisVector(axis), 0.0f);
    const Matrix toClip = placedAt(frame, middle, turn);
    frame.SetLineWidth(2.5f);
    m_plain.Begin();
    m_plain.Set("toClip", toClip);
    m_plain.Set("colour", AxisColours[axis]);
    m_plain.SetPositions(m_arms);
    frame.gl.glDrawArrays(GL_LINES, 2 * axis, 2);
    m_plain.End();

    frame.SetPointSize(DotSize);
    m_dots.Begin();
    m_dots.Set("toClip", toClip);
    m_dots.Set("colour", AxisColours[axis]);
    m_dots.SetPositions(m_arms);
    frame.gl.glDrawArrays(GL_POINTS, 2 * axis + 1, 1);
    m_dots.End();

    frame.SetLineWidth(1.8f);
    m_plain.Begin();
    m_plain.Set("toClip", placedAt(frame, tip, Matrix()));
    m_plain.Set("colour", LetterColour);
    m_plain.SetPositions(m_letters);
    frame.gl.glDrawArrays(GL_LINES, FirstOfLetter[axis],
                          FirstOfLetter[axis + 1] - FirstOfLetter[axis]);
    m_plain.End();
}

} // namespace orvane
