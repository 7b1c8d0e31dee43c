// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossinglane.h"
#include "graph/lanes.h"

//! Pairs of segments, gathered so that several are tested at once. Each answer is that of
//! segmentsCross.
class CrossingBatch
{
public:
    static const int Capacity = 256; // pairs

    explicit CrossingBatch(Lanes lanes = widestLanes()) : m_lanes(lanes) {}

    int size() const { return m_size; }
    //! The segments a[0]-a[1] and b[0]-b[1]; only while the size is below the capacity.
    void add(const orvane::Vector *a, const orvane::Vector *b);
    void test();
    //! After test, until clear.
    crossinglane::Answer answer(int i) const;
    void clear() { m_size = 0; }

    struct Column
    {
        float x[Capacity];
        float y[Capacity];
        float z[Capacity];

        void set(int i, const orvane::Vector &v)
        {
            x[i] = v.x;
            y[i] = v.y;
            z[i] = v.z;
        }
        orvane::Vector at(int i) const { return {x[i], y[i], z[i]}; }
    };
    struct Columns
    {
        Column a0, a1, b0, b1;
        Column place;
        float ta[Capacity];
        float tb[Capacity];
    };

private:
    Lanes m_lanes;
    int m_size = 0;
    Columns m_columns;
};
