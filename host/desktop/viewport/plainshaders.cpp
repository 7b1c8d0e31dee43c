// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/plainshaders.h"

namespace orvane {

namespace {

const char *const VertexSource = R"(#version 120
attribute vec3 position;
uniform mat4 toClip;
void main()
{
    gl_Position = toClip * vec4(position, 1.0);
}
)";

const char *const PlainSource = R"(#version 120
uniform vec4 colour;
void main()
{
    gl_FragColor = colour;
}
)";

const char *const DotSource = R"(#version 120
uniform vec4 colour;
void main()
{
    float radius = length(gl_PointCoord - vec2(0.5));
    float rim = fwidth(radius);
    float cover = 1.0 - smoothstep(0.5 - rim, 0.5, radius);
    if (cover <= 0.0)
        discard;
    gl_FragColor = vec4(colour.rgb, colour.a * cover);
}
)";

} // namespace

PlainShader::PlainShader() : Shader(VertexSource, PlainSource) {}

DotShader::DotShader() : Shader(VertexSource, DotSource) {}

} // namespace orvane
