// SPDX-License-Identifier: MIT
#include "host/desktop/tools/worksurface.h"

#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QLineF>

#include <algorithm>

namespace orvane {

namespace {

const double PixelStep = 3.0;       // pixels
const int MaximumPixelSteps = 4000; // count: a pointer that comes from anywhere

AxisAlignedBoundingBox worldBounds(const Geometry &geometry)
{
    const AxisAlignedBoundingBox &local = geometry.CurrentLevel()->Bounds();
    AxisAlignedBoundingBox box;
    for (int corner = 0; corner < 8 && !local.IsEmpty(); ++corner) {
        const Vector place(corner & 1 ? local.maximum.x : local.minimum.x,
                           corner & 2 ? local.maximum.y : local.minimum.y,
                           corner & 4 ? local.maximum.z : local.minimum.z);
        box.Extend(geometry.Placement()->ToWorld(place));
    }
    return box;
}

WorkSurface surfaceOf(const Geometry *geometry, ToolContext &context)
{
    const SurfaceLocator *locator = geometry ? context.Locator(*geometry) : nullptr;
    if (!locator)
        return {};
    const AxisAlignedBoundingBox bounds = worldBounds(*geometry);
    return {geometry->CurrentLevel(), locator, bounds.Center(), bounds.Diagonal()};
}

} // namespace

WorkSurface drawingSurface(ToolContext &context)
{
    const Geometry *geometry = Kernel()->Scene()->DrawingSurface();
    return geometry && !geometry->IsHidden() ? surfaceOf(geometry, context) : WorkSurface();
}

WorkSurface surfaceOf(const OrvaneCurve &curve, ToolContext &context)
{
    const Geometry *geometry = curve.Geometry();
    return geometry ? surfaceOf(geometry, context) : drawingSurface(context);
}

float spacingOn(const WorkSurface &surface, ToolContext &context)
{
    return surface.diagonal * context.Settings().spacing;
}

SurfaceHit hitOn(const WorkSurface &surface, ToolContext &context, const QPointF &pixel)
{
    if (!surface.IsUsable())
        return {};
    return surfaceAt(context.ViewCamera(), {surface.locator}, pixel);
}

float tolerance(const WorkSurface &surface, ToolContext &context, double pixels)
{
    const Camera &camera = context.ViewCamera();
    const double size = camera.PixelSize(qMax(camera.NearDepth(), camera.PivotDepth()));
    return std::max(spacingOn(surface, context), float(pixels * size));
}

QVector<QPointF> pixelsBetween(const QPointF &from, const QPointF &to)
{
    const double length = QLineF(from, to).length();
    const int steps = int(qBound(1.0, length / PixelStep, double(MaximumPixelSteps)));
    QVector<QPointF> pixels;
    for (int i = 1; i <= steps; ++i)
        pixels.append(from + (to - from) * (double(i) / steps));
    return pixels;
}

} // namespace orvane
