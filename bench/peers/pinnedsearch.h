// SPDX-License-Identifier: MIT
#pragma once

#include "bench/peers/peerrun.h"

//! The search as its rule reads, nothing clever, and everything it uses written out here: it stays
//! as fast as it is while the real one changes. Boxes of curves are made once, boxes of segments
//! anew for each pair. Crossings are kept in order along each curve; no nodes are made.
//! Compiled with -O2, whatever the rest is compiled with.
PeerRun runPinnedSearch(const Polylines &lines, float distance, bool useSelfIntersections);
