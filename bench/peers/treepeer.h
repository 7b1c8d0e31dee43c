// SPDX-License-Identifier: MIT
#pragma once

#include "bench/peers/peerrun.h"

//! Crossings alone: Boost's R-tree over the grown boxes of all segments, packed when it is made;
//! each segment's box is queried, and what comes back goes through the crossing test of this
//! project. Keeps places and parameters, but makes no nodes. distance: as for the search.
PeerRun runTree(const Polylines &lines, float distance, bool useSelfIntersections);
