// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/drawing/meshcutter.h"

namespace orvane {

struct Ray
{
    Vector origin;
    Vector direction; // of any length but zero
};

//! The cut as curves, evenly spaced by about spacing (scene units).
QVector<CurveShape> sectionCurves(const MeshCutter &cutter, const Plane &plane, float spacing,
                                  const SurfaceLocator &surface);

//! The straight line on the screen between the places that two rays from the eye go through, as it
//! falls on the surface. Where both rays hit, the part of the cut between the hits: the shorter
//! way to the eye of the two around the shape, cut in two at a silhouette when the hits are not on
//! one line. Where one misses, all of the cut. Nothing for rays along one line.
QVector<CurveShape> straightSection(const MeshCutter &cutter, const Ray &from, const Ray &to,
                                    float spacing, const SurfaceLocator &surface);

//! The closed line of the cut that comes nearest to the plane's point; no points when none closes.
CurveShape loopAround(const MeshCutter &cutter, const Plane &plane, float spacing,
                      const SurfaceLocator &surface);

//! The plane between two places, square to the way from one to the other: across the limb that a
//! short stroke was drawn along.
Plane planeAcross(const Vector &from, const Vector &to);

//! The plane through a picked point of the surface, square to the surface there, whose loop around
//! the limb is the shortest of several directions. A zero normal when none gives a loop. Costs
//! about 30 cuts.
Plane shortestLoopPlane(const MeshCutter &cutter, const SurfacePoint &picked);

} // namespace orvane
