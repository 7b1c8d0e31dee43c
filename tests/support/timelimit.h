// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! How long an optimised build may take, in milliseconds, turned into what this one may.
inline qint64 timeLimit(qint64 optimised)
{
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
    return optimised * 20;
#else
    return optimised;
#endif
}
