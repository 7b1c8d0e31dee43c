// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/shader.h"

namespace orvane {

//! One colour, without light. Uniforms: toClip, colour.
class PlainShader : public Shader
{
public:
    PlainShader();
};

//! Points as round dots with soft rims. Uniforms: toClip, colour.
class DotShader : public Shader
{
public:
    DotShader();
};

} // namespace orvane
