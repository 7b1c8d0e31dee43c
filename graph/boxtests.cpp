// SPDX-License-Identifier: MIT
#include "graph/boxtests.h"

#include "graph/segmentcrossing.h"

#include <QtGlobal>

#ifdef QUILLMESH_WIDE_LANES
#    include <immintrin.h>
#endif

using orvane::AxisAlignedBoundingBox;

namespace {

int testOne(const BoxBlock *blocks, const BoxSpan *spans, int spanCount,
            const AxisAlignedBoundingBox &box, int *hits)
{
    int count = 0;
    for (const BoxSpan *span = spans; span < spans + spanCount; ++span) {
        for (int i = span->first; i < span->last; ++i) {
            const BoxBlock &b = blocks[i / BoxLanes];
            const int lane = i % BoxLanes;
            AxisAlignedBoundingBox other;
            other.minimum = {b.minimum[0][lane], b.minimum[1][lane], b.minimum[2][lane]};
            other.maximum = {b.maximum[0][lane], b.maximum[1][lane], b.maximum[2][lane]};
            if (snappedBoxesOverlap(box, other))
                hits[count++] = i;
        }
    }
    return count;
}

#ifdef QUILLMESH_WIDE_LANES

// One bit for each lane, the first of which is box i, that holds a box of the span.
unsigned lanesWithin(const BoxSpan &span, int i)
{
    const unsigned begun = span.first > i ? ~0u << (span.first - i) : ~0u;
    return span.last - i < BoxLanes ? begun & ((1u << (span.last - i)) - 1u) : begun;
}

inline int *appendHits(int *hits, int first, unsigned lanes)
{
    for (; lanes != 0; lanes &= lanes - 1)
        *hits++ = first + __builtin_ctz(lanes);
    return hits;
}

int testFour(const BoxBlock *blocks, const BoxSpan *spans, int spanCount,
             const AxisAlignedBoundingBox &box, int *hits)
{
    const __m128 low[] = {_mm_set1_ps(box.minimum.x), _mm_set1_ps(box.minimum.y),
                          _mm_set1_ps(box.minimum.z)};
    const __m128 high[] = {_mm_set1_ps(box.maximum.x), _mm_set1_ps(box.maximum.y),
                           _mm_set1_ps(box.maximum.z)};
    int *end = hits;
    for (const BoxSpan *span = spans; span < spans + spanCount; ++span) {
        for (int i = span->first / 4 * 4; i < span->last; i += 4) {
            const BoxBlock &b = blocks[i / BoxLanes];
            __m128 overlap = _mm_cmpeq_ps(_mm_setzero_ps(), _mm_setzero_ps());
            for (int axis = 0; axis < 3; ++axis) {
                const __m128 minimum = _mm_load_ps(b.minimum[axis] + i % BoxLanes);
                const __m128 maximum = _mm_load_ps(b.maximum[axis] + i % BoxLanes);
                overlap = _mm_and_ps(overlap, _mm_and_ps(_mm_cmple_ps(minimum, high[axis]),
                                                         _mm_cmple_ps(low[axis], maximum)));
            }
            end = appendHits(end, i, unsigned(_mm_movemask_ps(overlap)) & lanesWithin(*span, i));
        }
    }
    return int(end - hits);
}

[[gnu::target("avx2")]] int testEight(const BoxBlock *blocks, const BoxSpan *spans, int spanCount,
                                      const AxisAlignedBoundingBox &box, int *hits)
{
    const __m256 low[] = {_mm256_set1_ps(box.minimum.x), _mm256_set1_ps(box.minimum.y),
                          _mm256_set1_ps(box.minimum.z)};
    const __m256 high[] = {_mm256_set1_ps(box.maximum.x), _mm256_set1_ps(box.maximum.y),
                           _mm256_set1_ps(box.maximum.z)};
    int *end = hits;
    for (const BoxSpan *span = spans; span < spans + spanCount; ++span) {
        for (int i = span->first / 8 * 8; i < span->last; i += 8) {
            const BoxBlock &b = blocks[i / BoxLanes];
            __m256 overlap = _mm256_castsi256_ps(_mm256_set1_epi32(-1));
            for (int axis = 0; axis < 3; ++axis) {
                const __m256 minimum = _mm256_load_ps(b.minimum[axis] + i % BoxLanes);
                const __m256 maximum = _mm256_load_ps(b.maximum[axis] + i % BoxLanes);
                overlap = _mm256_and_ps(
                    overlap, _mm256_and_ps(_mm256_cmp_ps(minimum, high[axis], _CMP_LE_OQ),
                                           _mm256_cmp_ps(low[axis], maximum, _CMP_LE_OQ)));
            }
            end = appendHits(end, i, unsigned(_mm256_movemask_ps(overlap)) & lanesWithin(*span, i));
        }
    }
    return int(end - hits);
}

[[gnu::target("avx512f")]] int testSixteen(const BoxBlock *blocks, const BoxSpan *spans,
                                           int spanCount, const AxisAlignedBoundingBox &box,
                                           int *hits)
{
    const __m512 low[] = {_mm512_set1_ps(box.minimum.x), _mm512_set1_ps(box.minimum.y),
                          _mm512_set1_ps(box.minimum.z)};
    const __m512 high[] = {_mm512_set1_ps(box.maximum.x), _mm512_set1_ps(box.maximum.y),
                           _mm512_set1_ps(box.maximum.z)};
    const __m512i lanes = _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    int *end = hits;
    for (const BoxSpan *span = spans; span < spans + spanCount; ++span) {
        for (int i = span->first / 16 * 16; i < span->last; i += 16) {
            const BoxBlock &b = blocks[i / BoxLanes];
            __mmask16 overlaps[3]; // by axis: told apart first, so that none waits for another
            for (int axis = 0; axis < 3; ++axis) {
                const __m512 minimum = _mm512_load_ps(b.minimum[axis]);
                const __m512 maximum = _mm512_load_ps(b.maximum[axis]);
                overlaps[axis] = _kand_mask16(_mm512_cmp_ps_mask(minimum, high[axis], _CMP_LE_OQ),
                                              _mm512_cmp_ps_mask(low[axis], maximum, _CMP_LE_OQ));
            }
            const __mmask16 overlap =
                _kand_mask16(_kand_mask16(overlaps[0], overlaps[1]),
                             _kand_mask16(overlaps[2], __mmask16(lanesWithin(*span, i))));
            // Without a branch: whether a box is hit cannot be foreseen.
            const __m512i numbers = _mm512_add_epi32(lanes, _mm512_set1_epi32(i));
            _mm512_storeu_si512(end, _mm512_maskz_compress_epi32(overlap, numbers));
            end += __builtin_popcount(overlap);
        }
    }
    return int(end - hits);
}

#endif

} // namespace

BoxTest boxTest(Lanes lanes)
{
#ifdef QUILLMESH_WIDE_LANES
    if (lanes == Lanes::Sixteen)
        return testSixteen;
    if (lanes == Lanes::Eight)
        return testEight;
    if (lanes == Lanes::Four)
        return testFour;
#endif
    Q_UNUSED(lanes)
    return testOne;
}
