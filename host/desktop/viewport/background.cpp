// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/background.h"

#include "host/desktop/viewport/frame.h"

namespace orvane {

namespace {

const QColor Above(74, 79, 86);
const QColor Below(36, 38, 42);

const char *const VertexSource = R"(#version 120
attribute vec3 position;
varying float height;
void main()
{
    height = 0.5 + 0.5 * position.y;
    gl_Position = vec4(position, 1.0);
}
)";

const char *const FragmentSource = R"(#version 120
varying float height;
uniform vec4 above;
uniform vec4 below;
void main()
{
    gl_FragColor = mix(below, above, smoothstep(0.0, 1.0, height));
}
)";

} // namespace

Background::Background() : m_shader(VertexSource, FragmentSource)
{
    m_corners.Upload(QVector<Vector>{{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}});
}

void Background::Draw(const Frame &frame)
{
    frame.gl.glDisable(GL_DEPTH_TEST);
    m_shader.Begin();
    m_shader.Set("above", Above);
    m_shader.Set("below", Below);
    m_shader.SetPositions(m_corners);
    frame.gl.glDrawArrays(GL_TRIANGLE_FAN, 0, m_corners.Count());
    m_shader.End();
    frame.gl.glEnable(GL_DEPTH_TEST);
}

} // namespace orvane
