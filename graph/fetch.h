// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

const int FetchAhead = 8; // steps of a loop, for memory to answer before they come

//! Starts to bring a place in memory close to the processor. Changes nothing.
inline void fetch(const void *place)
{
#if defined(__GNUC__)
    __builtin_prefetch(place);
#else
    Q_UNUSED(place)
#endif
}
