// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! Curves make a mesh where they cross, and they cross between stored points only: a point of one
//! curve that lies on another curve is no crossing. A stroke snapped to another curve would be just
//! that, so the tools do two things to a new stroke, in this order. runPast takes an end that comes
//! to another curve and leads it across, a little way beyond, so that the last stretch crosses
//! between its own points and between the other's. clearOf then looks for what touches all the
//! same, a point of the stroke on a stretch of another or the other way round, and moves the
//! stroke's point there by a small part of its stretch: along the stroke first, which leaves its
//! way as it is, else sideways. Other curves are never changed.

//! Does a point of the line lie on a stretch of another, or a point of another on a stretch of the
//! line, within what the crossing search cannot tell apart?
bool touches(const QVector<Vector> &line, const QVector<QVector<Vector>> &others);

//! The shape with its points moved so that it touches none of the others; all on the surface.
CurveShape clearOf(const CurveShape &shape, const QVector<QVector<Vector>> &others,
                   const SurfaceLocator &surface);

} // namespace orvane
