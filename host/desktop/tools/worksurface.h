// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/screenpick.h"

#include <orvane/math/vector.h>

#include <QPointF>

namespace orvane {

class Geometry;
class Mesh;
class OrvaneCurve;
class ToolContext;

//! A surface that curves lie on, as it is during one event.
struct WorkSurface
{
    bool IsUsable() const { return locator && diagonal > 0.0f; }

    const Mesh *mesh = nullptr;
    const SurfaceLocator *locator = nullptr;
    Vector center;         // of its bounds, world space
    float diagonal = 0.0f; // of its bounds, world space
};

//! What new curves are drawn on. Not usable while there is none, or it is hidden.
WorkSurface drawingSurface(ToolContext &context);
//! What the curve lies on; for one bound to nothing what is drawn on.
WorkSurface surfaceOf(const OrvaneCurve &curve, ToolContext &context);

//! From point to point, in scene units.
float spacingOn(const WorkSurface &surface, ToolContext &context);
SurfaceHit hitOn(const WorkSurface &surface, ToolContext &context, const QPointF &pixel);
//! How far a pointer may miss, in scene units where the surface is in the middle of the view: so
//! many pixels, but never less than the spacing.
float tolerance(const WorkSurface &surface, ToolContext &context, double pixels);

//! The way of the pointer from one place to the next, that one last: places a few pixels apart, so
//! that a fast hand leaves no gaps.
QVector<QPointF> pixelsBetween(const QPointF &from, const QPointF &to);

} // namespace orvane
