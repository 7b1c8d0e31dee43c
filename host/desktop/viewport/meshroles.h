// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/shownmesh.h"

namespace orvane {

class Geometry;

//! The role of a geometry of the kernel's scene. While the active geometry lies on the drawing
//! surface, all that lie there are new meshes and the surface is their source; whoever makes the
//! surface active sees everything plain again. To lie on it is to stand as it does, within its box.
MeshRole meshRole(const Geometry &geometry);

} // namespace orvane
