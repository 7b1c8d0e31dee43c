// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! Leads each end of an open stroke that is within tolerance of another line across it and length
//! beyond (both in scene units). An end that is far enough across already stays; where another line
//! ends nearby, the stroke crosses it a little inside that end. Closed strokes and strokes shorter
//! than the ways in question stay as they are.
//! curvecontact.h says why, and what has to follow.
CurveShape runPast(const CurveShape &stroke, const QVector<QVector<Vector>> &others,
                   float tolerance, float length, const SurfaceLocator &surface);

} // namespace orvane
