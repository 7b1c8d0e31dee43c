// SPDX-License-Identifier: MIT
#pragma once

#include "examples/trianglemesh.h"

//! The head as triangles about cellSize (scene units) long on each side, vertices on the surface.
//! Surface nets; S. Gibson, "Constrained elastic surface nets", 1998, without the relaxation: each
//! vertex goes to the surface itself, after a smoothing along it.
TriangleMesh polygoniseHead(float cellSize);
