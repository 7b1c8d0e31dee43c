// SPDX-License-Identifier: MIT
#pragma once

#include "graph/intersectionnode.h"

#include <cstddef>
#include <cstdlib>
#include <new>
#include <vector>

#ifdef __linux__
#    include <sys/mman.h>
#endif

//! Takes large blocks in pages of 2 MiB, where the system has them: who fills a block of a million
//! nodes would wait for forty thousand pages of the usual size.
template <typename T>
class LargePageAllocator
{
public:
    using value_type = T;

    LargePageAllocator() = default;
    template <typename U>
    LargePageAllocator(const LargePageAllocator<U> &)
    {}

    T *allocate(std::size_t count)
    {
        const std::size_t bytes = count * sizeof(T);
        void *block = bytes < LeastBlock ? std::malloc(bytes) : largeBlock(bytes);
        if (!block)
            throw std::bad_alloc();
        return static_cast<T *>(block);
    }
    void deallocate(T *block, std::size_t) { std::free(block); }

    friend bool operator==(const LargePageAllocator &, const LargePageAllocator &) { return true; }
    friend bool operator!=(const LargePageAllocator &, const LargePageAllocator &) { return false; }

private:
    static constexpr std::size_t PageSize = std::size_t(1) << 21; // bytes
    static constexpr std::size_t LeastBlock = std::size_t(1)
                                              << 24; // bytes: no more is lost than 1/8

    static void *largeBlock(std::size_t bytes)
    {
#ifdef __linux__
        void *block = std::aligned_alloc(PageSize, (bytes + PageSize - 1) / PageSize * PageSize);
        if (block)
            madvise(block, bytes, MADV_HUGEPAGE); // a wish: usual pages do as well
        return block;
#else
        return std::malloc(bytes);
#endif
    }
};

//! The nodes of one search, side by side.
using NodeBlock = std::vector<IntersectionNode, LargePageAllocator<IntersectionNode>>;
