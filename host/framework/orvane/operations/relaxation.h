// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/sourcesurface.h>

namespace orvane {

//! Smooths a mesh along a surface: puts its vertices onto it, then, step by step, lets the edges
//! of its polygons pull at them like springs half as long as the edges around, as far as that
//! leads along the surface, and puts them back onto it. Vertices of the boundary slide along the
//! boundary only, and its corners stay (see BoundarySlide).
//! strength: from 0 to 1. At 1 a vertex goes half of the way to where its springs would rest, if
//! its neighbours stayed: beyond that they would begin to swing.
//! A vertex that finds no surface stays and pulls no other; one without edges is just put onto it.
//! A vertex does not change to a side that faces away, as the far one of a thin part does.
//! The same on every run; linear in mesh and steps, but for asking the surface.
ORVANE_EXPORT std::vector<SurfacePlace>
relaxedPlaces(const Mesh &mesh, const SourceSurface &surface, int steps, float strength);

} // namespace orvane
