// SPDX-License-Identifier: MIT
#pragma once

#include "bench/peers/peerrun.h"

//! CGAL sweeps all segments into an arrangement, exact numbers made where they are needed.
PeerRun runCgal(const Polylines &lines);
