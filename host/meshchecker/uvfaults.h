// SPDX-License-Identifier: MIT
#pragma once

#include "host/meshchecker/meshchecker.h"

namespace orvane {

struct MeshShape;

//! Faults of texture coordinates. A mesh without any has none.
MeshFault uvCrossings(const MeshShape &shape);
MeshFault missingUVs(const MeshShape &shape);

} // namespace orvane
