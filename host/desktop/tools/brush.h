// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/view/viewclient.h"

namespace orvane {

class ToolContext;

//! A round brush where it lies on what is shown: a ball about a place of the surface.
struct Brush
{
    bool IsOnSurface() const { return radius > 0.0f; }
    //! From 1 at its centre to 0 at its rim and beyond.
    float Strength(const Vector &place) const;
    //! Does it touch the curve? Not one on the far side of a thin part.
    bool Reaches(const CurveShape &shape) const;

    Vector center;
    Vector normal;       // of the surface there
    float radius = 0.0f; // scene units
};

Brush brushAt(const QPointF &pixel, ToolContext &context);
//! Its rim on the screen.
QVector<ViewShape> brushOutline(const QPointF &pixel, const QColor &colour, ToolContext &context);

} // namespace orvane
