// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! Bytes of memory that the process occupies; 0 where the system does not tell, and under a
//! sanitizer, which keeps what was freed for a while.
qint64 memoryInUse();
