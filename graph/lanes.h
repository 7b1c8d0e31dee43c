// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

// Where the compiler can write for a processor wider than the least one of its family.
#if defined(__GNUC__) && defined(__x86_64__)
#    define QUILLMESH_WIDE_LANES
#endif

//! How many numbers one instruction works on: four on every processor of the family, more on the
//! newer ones.
enum class Lanes { One, Four, Eight, Sixteen };

//! Can this processor, in this build?
inline bool hasLanes(Lanes lanes)
{
#ifdef QUILLMESH_WIDE_LANES
    if (lanes == Lanes::Sixteen)
        return __builtin_cpu_supports("avx512f");
    return lanes != Lanes::Eight || __builtin_cpu_supports("avx2");
#else
    return lanes == Lanes::One;
#endif
}

inline Lanes widestLanes()
{
    for (Lanes lanes : {Lanes::Sixteen, Lanes::Eight, Lanes::Four}) {
        if (hasLanes(lanes))
            return lanes;
    }
    return Lanes::One;
}
