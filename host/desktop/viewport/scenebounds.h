// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/axisalignedboundingbox.h>

namespace orvane {

class Geometry;
class OrvaneCurve;

//! The box of the shown level in world space; empty without one.
AxisAlignedBoundingBox boundsOf(const Geometry &geometry);
AxisAlignedBoundingBox boundsOf(const OrvaneCurve &curve);
//! Of all geometries and curves of the kernel's scene that are shown.
AxisAlignedBoundingBox shownBounds();
//! Of the selected ones among them; without any, of the active geometry, or of all.
AxisAlignedBoundingBox selectionBounds();
//! Of both.
AxisAlignedBoundingBox joined(AxisAlignedBoundingBox a, const AxisAlignedBoundingBox &b);

} // namespace orvane
