// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/groundgrid.h"

#include "host/desktop/viewport/frame.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const int HalfLines = 30; // from the middle to the end of the grid
const int BoldEvery = 10; // lines
const float LinesAcrossScene = 12.0f;
const QColor Fine(150, 156, 164, 50);
const QColor Bold(165, 171, 180, 105);
const QColor AlongX(190, 78, 72, 190);
const QColor AlongZ(72, 116, 200, 190);

const char *const VertexSource = R"(#version 120
attribute vec3 position;
uniform mat4 toClip;
varying vec3 place;
void main()
{
    place = position;
    gl_Position = toClip * vec4(position, 1.0);
}
)";

const char *const FragmentSource = R"(#version 120
uniform vec4 colour;
uniform mat4 toDisc;
varying vec3 place;
void main()
{
    float away = length((toDisc * vec4(place, 1.0)).xyz);
    gl_FragColor = vec4(colour.rgb, colour.a * (1.0 - smoothstep(0.25, 1.0, away)));
}
)";

float roundSpacing(float wanted)
{
    const float power = std::pow(10.0f, std::floor(std::log10(wanted)));
    const float digits = wanted / power;
    return power * (digits < 1.5f ? 1.0f : digits < 3.5f ? 2.0f : digits < 7.5f ? 5.0f : 10.0f);
}

float onMultiple(float value, float step)
{
    return std::round(value / step) * step;
}

} // namespace

GridLayout::GridLayout(const AxisAlignedBoundingBox &scene)
{
    const float size = scene.Diagonal();
    if (!(size > 0.0f) || !std::isfinite(size))
        return;
    spacing = roundSpacing(size / LinesAcrossScene);
    const float step = spacing * float(BoldEvery);
    const Vector centre = scene.Center();
    middle = Vector(onMultiple(centre.x, step), std::min(0.0f, scene.minimum.y),
                    onMultiple(centre.z, step));
}

bool GridLayout::operator==(const GridLayout &other) const
{
    return middle == other.middle && spacing == other.spacing;
}

GroundGrid::GroundGrid() : m_shader(VertexSource, FragmentSource), m_layout({})
{
    upload();
}

void GroundGrid::Draw(const Frame &frame, const AxisAlignedBoundingBox &scene)
{
    const GridLayout layout(scene);
    if (!(layout == m_layout)) {
        m_layout = layout;
        upload();
    }
    const float reach = 1.0f / (float(HalfLines) * m_layout.spacing);
    frame.gl.glDepthMask(GL_FALSE);
    frame.SetLineWidth(1.0f);
    m_shader.Begin();
    m_shader.Set("toClip", frame.WorldToClip());
    m_shader.Set("toDisc", Matrix::Translation(-m_layout.middle)
                               * Matrix::Scaling(Vector(reach, reach, reach)));
    m_shader.SetPositions(m_lines);
    m_shader.Set("colour", Fine);
    frame.gl.glDrawArrays(GL_LINES, 0, m_fineCount);
    m_shader.Set("colour", Bold);
    frame.gl.glDrawArrays(GL_LINES, m_fineCount, m_lines.Count() - m_fineCount - 4);
    m_shader.Set("colour", AlongX);
    frame.gl.glDrawArrays(GL_LINES, m_lines.Count() - 4, 2);
    m_shader.Set("colour", AlongZ);
    frame.gl.glDrawArrays(GL_LINES, m_lines.Count() - 2, 2);
    m_shader.End();
    frame.gl.glDepthMask(GL_TRUE);
}

void GroundGrid::upload()
{
    const float reach = float(HalfLines) * m_layout.spacing;
    const Vector middle = m_layout.middle;
    QVector<Vector> fine;
    QVector<Vector> bold;
    for (int i = -HalfLines; i <= HalfLines; ++i) {
        const float away = float(i) * m_layout.spacing;
        QVector<Vector> &lines = i % BoldEvery == 0 ? bold : fine;
        lines << middle + Vector(away, 0.0f, -reach) << middle + Vector(away, 0.0f, reach)
              << middle + Vector(-reach, 0.0f, away) << middle + Vector(reach, 0.0f, away);
    }
    m_fineCount = fine.size();
    bold << Vector(middle.x - reach, middle.y, 0.0f) << Vector(middle.x + reach, middle.y, 0.0f)
         << Vector(0.0f, middle.y, middle.z - reach) << Vector(0.0f, middle.y, middle.z + reach);
    m_lines.Upload(fine + bold);
}

} // namespace orvane
