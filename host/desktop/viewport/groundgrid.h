// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/shader.h"

#include <orvane/math/axisalignedboundingbox.h>

namespace orvane {

struct Frame;

//! Where the ground is and how far apart its lines are. The ground is the plane y = 0, or lower
//! where the scene reaches below it. Lines are 1, 2 or 5 times a power of ten apart and stand on
//! multiples of that, so that they stay in place while the scene grows.
struct GridLayout
{
    explicit GridLayout(const AxisAlignedBoundingBox &scene);
    bool operator==(const GridLayout &other) const;

    Vector middle;        // on a crossing of lines
    float spacing = 1.0f; // scene units
};

//! A grid that fades out around the scene.
class GroundGrid
{
public:
    GroundGrid();

    void Draw(const Frame &frame, const AxisAlignedBoundingBox &scene);

private:
    void upload();

    Shader m_shader;
    GridLayout m_layout;
    CardArray m_lines;   // fine ones first
    int m_fineCount = 0; // of their ends
};

} // namespace orvane
