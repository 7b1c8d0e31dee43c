// SPDX-License-Identifier: MIT
#include "graph/boxlist.h"

#include <algorithm>
#include <cmath>

using orvane::AxisAlignedBoundingBox;

AxisAlignedBoundingBox BoxList::around(int first, int last) const
{
    AxisAlignedBoundingBox whole;
    for (int i = first; i < last; ++i) {
        const AxisAlignedBoundingBox box = at(i);
        if (!isNumber(box))
            continue;
        // Not Extend: it would turn a box shrunk below nothing inside out.
        whole.minimum = {std::min(whole.minimum.x, box.minimum.x),
                         std::min(whole.minimum.y, box.minimum.y),
                         std::min(whole.minimum.z, box.minimum.z)};
        whole.maximum = {std::max(whole.maximum.x, box.maximum.x),
                         std::max(whole.maximum.y, box.maximum.y),
                         std::max(whole.maximum.z, box.maximum.z)};
    }
    return whole;
}

void BoxList::resize(int size)
{
    m_size = size;
    m_blocks.resize(std::size_t((size + BoxLanes - 1) / BoxLanes));
}

void BoxList::set(int i, const AxisAlignedBoundingBox &box)
{
    BoxBlock &block = m_blocks[std::size_t(i / BoxLanes)];
    const int lane = i % BoxLanes;
    block.minimum[0][lane] = box.minimum.x;
    block.minimum[1][lane] = box.minimum.y;
    block.minimum[2][lane] = box.minimum.z;
    block.maximum[0][lane] = box.maximum.x;
    block.maximum[1][lane] = box.maximum.y;
    block.maximum[2][lane] = box.maximum.z;
}

bool isNumber(const AxisAlignedBoundingBox &box)
{
    for (const orvane::Vector *side : {&box.minimum, &box.maximum}) {
        if (std::isnan(side->x) || std::isnan(side->y) || std::isnan(side->z))
            return false;
    }
    return true;
}
