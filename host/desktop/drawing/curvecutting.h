// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! What is left of a curve when the part inside a ball is gone: open curves in the order of its
//! points, with new ends where the curve goes into the ball and comes out of it. A closed curve
//! becomes open ones. The curve itself when no part of it is inside; nothing when all of it is.
QVector<CurveShape> erased(const CurveShape &shape, const Vector &center, float radius,
                           const SurfaceLocator &surface);

} // namespace orvane
