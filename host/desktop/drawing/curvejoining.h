// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! One open curve of two: the nearer ends meet, one of the curves turned round where need be. The
//! gap is bridged along the surface with points as far apart as the first curve's; where the ends
//! nearly touch, one of their points goes. The first curve keeps its direction. A closed curve has
//! no end to join: the answer is then the first curve.
CurveShape joined(const CurveShape &first, const CurveShape &second, const SurfaceLocator &surface);

//! The open curve and a further stroke that goes on from the curve's end nearest to where the
//! stroke starts; as joined, but the stroke's far end never meets the curve.
CurveShape extended(const CurveShape &shape, const CurveShape &stroke,
                    const SurfaceLocator &surface);

//! Closes an open curve along the surface; the curve as it is when that is impossible.
CurveShape closed(const CurveShape &shape, const SurfaceLocator &surface);

} // namespace orvane
