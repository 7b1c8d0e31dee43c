// SPDX-License-Identifier: MIT
#pragma once

#include "host/meshchecker/meshchecker.h"

namespace orvane {

struct MeshShape;

//! Faults in the form of single faces and edges, and faces that lie on one another.
MeshFault twoSidedFaces(const MeshShape &shape);
MeshFault tooManySides(const MeshShape &shape);
MeshFault zeroLengthEdges(const MeshShape &shape);
MeshFault laminaFaces(const MeshShape &shape);
MeshFault degenerateFaces(const MeshShape &shape);

//! The polygons p of the shape for which isFaulty(p) holds.
template <typename IsFaulty>
MeshFault faultyPolygons(int bit, const PolygonList &polygons, IsFaulty isFaulty)
{
    MeshFault fault;
    fault.bit = bit;
    for (int p = 0; p < polygons.Count(); ++p) {
        if (isFaulty(p))
            fault.polygons.append({p, polygons.firstFace[p]});
    }
    return fault;
}

} // namespace orvane
