// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

namespace orvane {

//! The geometry or curve of the scene with that number, when it is of the class or derived from
//! it. Null, and logged, when there is none.
Node *sceneNode(int id, const ClassDesc *kind);

//! Calls the action with the geometry or curve that the node is; not at all for another node.
template <typename Action>
void visitSceneNode(Node &node, const Action &action)
{
    if (auto *geometry = dynamic_cast<Geometry *>(&node))
        action(*geometry);
    if (auto *curve = dynamic_cast<OrvaneCurve *>(&node))
        action(*curve);
}

} // namespace orvane
