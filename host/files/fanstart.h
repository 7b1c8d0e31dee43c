// SPDX-License-Identifier: MIT
#pragma once

namespace orvane {

struct PolygonMesh;

//! A polygon of the host is a fan about its first corner, so a concave one is turned to start at a
//! corner from which the fan covers just the polygon: points in a notch must not find a face there.
//! Polygons whose fan is right already, and those that no corner sees whole, stay as they are.
void startAtFanCorners(PolygonMesh *mesh);

} // namespace orvane
