// SPDX-License-Identifier: MIT
#include "bench/support/keptmemory.h"

#include <cstdlib>

#ifdef __GLIBC__
#    include <malloc.h>
#endif

void keepFreedMemory()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_MAX, 0);        // no block goes back to the system by itself
    mallopt(M_TRIM_THRESHOLD, -1); // nor does the end of the heap
#endif
}
