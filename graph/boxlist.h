// SPDX-License-Identifier: MIT
#pragma once

#include "graph/boxtests.h"
#include "graph/fetch.h"

#include <vector>

//! A numbered list of snapped boxes, laid out so that many are tested at once.
class BoxList
{
public:
    BoxList() = default;
    explicit BoxList(int size, Lanes lanes = widestLanes()) : m_test(boxTest(lanes))
    {
        resize(size);
    }

    int size() const { return m_size; }
    orvane::AxisAlignedBoundingBox at(int i) const
    {
        const BoxBlock &block = m_blocks[std::size_t(i / BoxLanes)];
        const int lane = i % BoxLanes;
        orvane::AxisAlignedBoundingBox box;
        box.minimum = {block.minimum[0][lane], block.minimum[1][lane], block.minimum[2][lane]};
        box.maximum = {block.maximum[0][lane], block.maximum[1][lane], block.maximum[2][lane]};
        return box;
    }
    //! The box around those of [first, last). One with a side that is not a number overlaps
    //! nothing and counts for nothing.
    orvane::AxisAlignedBoundingBox around(int first, int last) const;

    void resize(int size);
    void set(int i, const orvane::AxisAlignedBoundingBox &box);

    //! Starts to bring a box and those tested with it close to the processor.
    void fetch(int i) const
    {
        const BoxBlock &block = m_blocks[std::size_t(i / BoxLanes)];
        for (int axis = 0; axis < 3; ++axis) {
            ::fetch(block.minimum[axis]);
            ::fetch(block.maximum[axis]);
        }
    }

    //! Writes down, ascending, the numbers of those boxes of [first, last) that overlap the box,
    //! and answers how many they are. hits has room for last - first + BoxLanes numbers.
    int overlapping(int first, int last, const orvane::AxisAlignedBoundingBox &box, int *hits) const
    {
        const BoxSpan span = {first, last};
        return overlapping(&span, 1, box, hits);
    }
    //! The same for several spans at a time.
    int overlapping(const BoxSpan *spans, int spanCount, const orvane::AxisAlignedBoundingBox &box,
                    int *hits) const
    {
        return m_test(m_blocks.data(), spans, spanCount, box, hits);
    }

private:
    BoxTest m_test = boxTest(widestLanes());
    int m_size = 0;
    std::vector<BoxBlock> m_blocks;
};

//! Is no side of the box a NaN?
bool isNumber(const orvane::AxisAlignedBoundingBox &box);
