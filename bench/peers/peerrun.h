// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QtGlobal>

#include <utility>
#include <vector>

//! What one run of a peer took and found. Making its input and freeing its result is not timed.
struct PeerRun
{
    double seconds = 0.0;  // of processor time
    qint64 crossings = -1; // -1: it does not tell
    qint64 faces = -1;     // bounded ones; -1: it does not tell
};

//! Positions of the samples, curve by curve.
using Polylines = std::vector<std::vector<orvane::Vector>>;

//! The links of a graph, by the places of their ends.
using Links = std::vector<std::pair<orvane::Vector, orvane::Vector>>;
