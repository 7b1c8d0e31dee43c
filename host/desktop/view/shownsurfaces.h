// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/screenpick.h"

namespace orvane {

class Geometry;

// The surfaces of the kernel's scene, as their meshes keep them. Good until the scene changes: ask
// anew at every event. While all stays the same, asking costs a look at each geometry.

//! Null for a geometry that is not in the scene or has no level; hidden ones have a locator.
const SurfaceLocator *locatorOf(const Geometry *geometry);
//! The geometries that are shown and have a surface, in the order of the scene.
QVector<Geometry *> shownGeometries();
//! Their locators, in the same order.
SurfaceList shownSurfaces();

} // namespace orvane
