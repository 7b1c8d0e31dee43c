// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

//! The crossing of two segments written down once more as its rule reads, with a branch wherever
//! the rule has one: what the real one is held against, bit by bit.
bool plainSegmentsCross(const orvane::Vector &a0, const orvane::Vector &a1,
                        const orvane::Vector &b0, const orvane::Vector &b1, orvane::Vector &point,
                        float &ta, float &tb);
