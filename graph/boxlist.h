// SPDX-License-Identifier: MIT
#pragma once

#include "graph/boxtests.h"

#include <vector>

//! A numbered list of snapped boxes, laid out so that many are tested at once.
class BoxList
{
public:
    BoxList() = default;
    explicit BoxList(int size) { resize(size); }

    int size() const { return m_size; }
    orvane::AxisAlignedBoundingBox at(int i) const
    {
        orvane::AxisAlignedBoundingBox box;
        box.minimum = {m_minimum[0][i], m_minimum[1][i], m_minimum[2][i]};
        box.maximum = {m_maximum[0][i], m_maximum[1][i], m_maximum[2][i]};
        return box;
    }
    //! Smallest and largest coordinates along an axis, by box.
    const float *minimum(int axis) const { return m_minimum[axis].data(); }
    const float *maximum(int axis) const { return m_maximum[axis].data(); }
    //! The box around those of [first, last). One with a side that is not a number overlaps
    //! nothing and counts for nothing.
    orvane::AxisAlignedBoundingBox around(int first, int last) const;

    void resize(int size);
    void set(int i, const orvane::AxisAlignedBoundingBox &box);

    //! Writes down, ascending, the numbers of those boxes of [first, last) that overlap the box,
    //! and answers how many they are. hits has room for last - first + BoxLanes numbers.
    int overlapping(int first, int last, const orvane::AxisAlignedBoundingBox &box, int *hits) const
    {
        const BoxColumns columns = {{minimum(0), minimum(1), minimum(2)},
                                    {maximum(0), maximum(1), maximum(2)}};
        return m_test(columns, first, last, box, hits);
    }

private:
    BoxTest m_test = boxTest(widestLanes());
    int m_size = 0;
    std::vector<float> m_minimum[3]; // longer than the list by BoxLanes
    std::vector<float> m_maximum[3];
};

//! Is no side of the box a NaN?
bool isNumber(const orvane::AxisAlignedBoundingBox &box);
