// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/matrix.h>

namespace orvane {

class MeshOnCard;

//! What a mesh is to the user right now.
enum class MeshRole {
    Plain,  //!< nothing special
    Source, //!< a new mesh stands on it: it steps back
    Over    //!< the new mesh, on its source
};

//! A mesh as it is drawn in one frame.
struct ShownMesh
{
    MeshOnCard *card = nullptr;
    Matrix toWorld;
    bool mirrored = false; // by its placement
    bool selected = false;
    MeshRole role = MeshRole::Plain;
    double lift = 0.0;        // pixels, as for Camera::ProjectionMatrix
    double longestEdge = 0.0; // scene units
    double edgePixels = 0.0;  // how long its edges are seen, about
};

} // namespace orvane
