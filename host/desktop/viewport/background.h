// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/shader.h"

namespace orvane {

struct Frame;

//! A quiet gradient behind everything, lighter above.
class Background
{
public:
    Background();

    void Draw(const Frame &frame);

private:
    Shader m_shader;
    CardArray m_corners;
};

} // namespace orvane
