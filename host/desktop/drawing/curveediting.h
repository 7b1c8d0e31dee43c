// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! Edits of one curve. Each answers the curve as it is to be; every point lies on the surface, and
//! a closed curve stays closed unless said otherwise, with a new closing point.

//! Each step moves every point halfway to the middle of its neighbours, along the surface. The
//! ends of an open curve stay.
CurveShape smoothed(const CurveShape &shape, int steps, const SurfaceLocator &surface);

//! Moves the drawn point of that index by the offset, along the surface, and its neighbours with
//! it: less and less, to nothing at reach (scene units, measured along the curve).
CurveShape moved(const CurveShape &shape, int index, const Vector &offset, float reach,
                 const SurfaceLocator &surface);

//! Every point moved by the offset, then put onto the surface.
CurveShape shifted(const CurveShape &shape, const Vector &offset, const SurfaceLocator &surface);

//! The partner across the plane through center that is square to an axis (0 x, 1 y, 2 z): each
//! point mirrored and put onto the surface. As many points, in the same order.
CurveShape mirrored(const CurveShape &shape, int axis, const Vector &center,
                    const SurfaceLocator &surface);

//! A closed one keeps its first point. Reversing twice gives the drawn points back.
CurveShape reversed(const CurveShape &shape, const SurfaceLocator &surface);

//! The same way in points evenly spaced by about spacing (scene units).
CurveShape resampled(const CurveShape &shape, float spacing, const SurfaceLocator &surface);

//! Leaves out the closing stretch.
CurveShape opened(const CurveShape &shape);

} // namespace orvane
