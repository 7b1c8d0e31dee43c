// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/plainshaders.h"

namespace orvane {

struct Frame;

//! The axes of the world in the upper right corner of the view, with their letters.
class AxisGizmo
{
public:
    AxisGizmo();

    void Draw(const Frame &frame);

private:
    void drawAxis(const Frame &frame, int axis);

    PlainShader m_plain;
    DotShader m_dots;
    CardArray m_arms;    // from the middle to the tip, axis after axis
    CardArray m_letters; // pixels about the tip, y down
};

} // namespace orvane
