// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/scenecurves.h"
#include "host/desktop/tools/worksurface.h"

namespace orvane {

class CurveStep;

//! Where a place appears across the plane through center that is square to an axis: 0 x, 1 y, 2 z.
Vector mirroredPlace(const Vector &place, int axis, const Vector &center);

//! The shape and its partner across the middle. Where an end comes to the middle the two are one
//! curve, closed when both ends do. A shape that is its own partner stays alone.
//! reach: what counts as at the middle, in scene units.
QVector<CurveShape> withPartner(const CurveShape &shape, int axis, float reach,
                                const WorkSurface &surface);

//! The shape led a little past the lines that an end of it comes to; as it was where none is near.
CurveShape ranPast(const CurveShape &shape, const CurveSpace &space, const WorkSurface &surface,
                   ToolContext &context);

//! What was drawn or cut, as the settings want it: run past the curves it ends at, mirrored, and
//! clear of all other curves. What is there already is left out.
QVector<CurveShape> finishedCurves(const QVector<CurveShape> &shapes, CurveSpace &space,
                                   const WorkSurface &surface, ToolContext &context);

//! Adds these shapes, finished, to the scene.
void addNewCurves(const QVector<CurveShape> &shapes, CurveStep &step, const WorkSurface &surface,
                  ToolContext &context);

//! An edited shape, its points as evenly spaced as those of the original were; one that was not
//! even to begin with, or so coarse that its points are corners, keeps the points it has.
CurveShape evenLike(const CurveShape &original, const CurveShape &edited,
                    const WorkSurface &surface);

} // namespace orvane
