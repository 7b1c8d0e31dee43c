// SPDX-License-Identifier: MIT
// Built with flags that let the compiler work on several pairs at once: roots set no error number,
// and nothing traps. Neither changes a result.
#include "graph/crossingbatch.h"

#include "graph/segmentcrossing.h"

using crossinglane::Answer;
using crossinglane::Limits;
using orvane::Vector;

namespace {

// Inlined, so that it is built once for each kind of processor.
[[gnu::always_inline]] inline void testEach(CrossingBatch::Columns &columns, int count,
                                            const Limits limits)
{
    for (int i = 0; i < count; ++i) {
        const Answer answer =
            cross(columns.a0.at(i), columns.a1.at(i), columns.b0.at(i), columns.b1.at(i), limits);
        columns.place.set(i, answer.place);
        columns.ta[i] = answer.ta;
        columns.tb[i] = answer.tb;
    }
}

#ifdef QUILLMESH_WIDE_LANES
[[gnu::target("avx2")]] void testEight(CrossingBatch::Columns &columns, int count)
{
    testEach(columns, count, crossingLimits());
}
#endif

void testFew(CrossingBatch::Columns &columns, int count)
{
    testEach(columns, count, crossingLimits());
}

} // namespace

void CrossingBatch::add(const Vector *a, const Vector *b)
{
    m_columns.a0.set(m_size, a[0]);
    m_columns.a1.set(m_size, a[1]);
    m_columns.b0.set(m_size, b[0]);
    m_columns.b1.set(m_size, b[1]);
    ++m_size;
}

void CrossingBatch::test()
{
#ifdef QUILLMESH_WIDE_LANES
    if (m_lanes >= Lanes::Eight) {
        testEight(m_columns, m_size);
        return;
    }
#endif
    testFew(m_columns, m_size);
}

Answer CrossingBatch::answer(int i) const
{
    return {m_columns.place.at(i), m_columns.ta[i], m_columns.tb[i]};
}
