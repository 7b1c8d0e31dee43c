// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/export.h"

#include <QVector>

namespace orvane {

class Mesh;
class OrvaneCurve;

//! What became of the drawn points; closing points are not counted.
struct CurveBinding
{
    int points = 0;
    int bound = 0;                 // of the points
    float greatestDistance = 0.0f; // that a bound point moved, in scene units
};

//! Puts every point onto the mesh, which is in the scene: the closest point of its surface within
//! maxDistance (scene units) gives face and local position, and the curve's point moves there. A
//! point farther away stays, bound to no face. Closing points are made anew from what was bound.
ORVANE_FILES_EXPORT CurveBinding bindCurves(const QVector<OrvaneCurve *> &curves, const Mesh &mesh,
                                            float maxDistance);

} // namespace orvane
