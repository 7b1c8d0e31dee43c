// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QtGlobal>

#include <functional>

namespace orvane {

//! How many threads an amount of work keeps busy when each gets no less than the least: 1 where
//! there is one processor or little to do.
ORVANE_EXPORT int threadsFor(qint64 amount, qint64 least);

//! Calls work(0) to work(parts - 1), each once, several at a time where there are processors, and
//! comes back after the last. No call may write what another one reads or writes.
ORVANE_EXPORT void inParallel(int parts, const std::function<void(int)> &work);

} // namespace orvane
