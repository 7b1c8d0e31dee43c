// SPDX-License-Identifier: MIT
#pragma once

#include "bench/peers/peerrun.h"

//! GEOS finds all crossings (MCIndexNoder, its fastest noder, in floating point), cuts the lines
//! there and makes polygons of the pieces. withoutRepetitions: pieces that lie on each other count
//! once, as the polygonizer wants it; costs time and is needed where lines overlap.
PeerRun runGeos(const Polylines &lines, bool withoutRepetitions);

//! GEOS's polygonizer alone, on lines that meet at their ends only.
PeerRun runGeosPolygonizer(const Links &links);
