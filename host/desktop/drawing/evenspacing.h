// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! Points along a line on the surface, all as far from the next as each other, about spacing
//! (scene units, above 0), in the straight: what counts is the distance between stored points. The
//! ends of the line are kept; the last place of a closed one is its first. Each point lies on the
//! surface. No points for a line without length. A line that turns back on itself may have no such
//! points; then they are as even as was found. A closed line may be begun at its sharpest turn.
CurveShape evenlySpaced(const QVector<Vector> &line, bool closed, float spacing,
                        const SurfaceLocator &surface);

//! The place of the line, not an end of it, where it turns most over about reach (scene units) to
//! both sides; 0 when there is none between the ends.
int sharpestTurn(const QVector<Vector> &line, float reach);

//! How far the most uneven stretch is from the mean one, as a fraction of it; 0 below two
//! stretches. The gap behind a closing point is no stretch.
float unevenness(const CurveShape &shape);

} // namespace orvane
