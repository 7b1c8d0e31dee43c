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
    for (int axis = 0; axis < 3; ++axis) {
        m_minimum[axis].resize(std::size_t(size + BoxLanes));
        m_maximum[axis].resize(std::size_t(size + BoxLanes));
    }
}

void BoxList::set(int i, const AxisAlignedBoundingBox &box)
{
    m_minimum[0][i] = box.minimum.x;
    m_minimum[1][i] = box.minimum.y;
    m_minimum[2][i] = box.minimum.z;
    m_maximum[0][i] = box.maximum.x;
    m_maximum[1][i] = box.maximum.y;
    m_maximum[2][i] = box.maximum.z;
}

bool isNumber(const AxisAlignedBoundingBox &box)
{
    for (const orvane::Vector *side : {&box.minimum, &box.maximum}) {
        if (std::isnan(side->x) || std::isnan(side->y) || std::isnan(side->z))
            return false;
    }
    return true;
}
