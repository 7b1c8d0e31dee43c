// SPDX-License-Identifier: MIT
#pragma once

#include "host/meshchecker/meshchecker.h"

namespace orvane {

struct MeshShape;

//! Faults in how vertices, edges and faces hang together; positions have no say.
MeshFault highValence(const MeshShape &shape);
MeshFault boundaryValence(const MeshShape &shape);
MeshFault interiorValenceTwo(const MeshShape &shape);
MeshFault vertexSplices(const MeshShape &shape);
MeshFault nonManifoldEdges(const MeshShape &shape);

} // namespace orvane
