// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/frame.h"
#include "host/desktop/viewport/viewoptions.h"

namespace orvane {

const float HiddenStrength = 0.3f; // of lines behind a surface, in x-ray

//! Draws lines by draw(strength): where surfaces do not hide them; in x-ray, first what they hide,
//! faintly.
template <typename Draw>
void drawWithHiddenParts(const Frame &frame, Draw draw)
{
    if (frame.options.xRay) {
        frame.gl.glDepthFunc(GL_GREATER);
        draw(HiddenStrength);
        frame.gl.glDepthFunc(GL_LEQUAL);
    }
    draw(1.0f);
}

} // namespace orvane
