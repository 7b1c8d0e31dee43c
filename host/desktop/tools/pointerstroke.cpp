// SPDX-License-Identifier: MIT
#include "host/desktop/tools/pointerstroke.h"

#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/mesh.h>

namespace orvane {

namespace {

const double CloseReach = 10.0; // pixels
const float LeastClose = 2.0f;  // times the spacing
const float Bridge = 8.0f;      // times the spacing

StrokeSettings strokeSettings(const WorkSurface &surface, ToolContext &context)
{
    StrokeSettings settings;
    settings.spacing = spacingOn(surface, context);
    settings.smoothing = settings.spacing * context.Settings().smoothing;
    settings.closeDistance =
        std::max(LeastClose * settings.spacing, tolerance(surface, context, CloseReach));
    settings.longestBridge = std::max(Bridge * settings.spacing, settings.closeDistance);
    return settings;
}

} // namespace

PointerStroke::PointerStroke(const WorkSurface &surface, ToolContext &context)
    : m_stroke(strokeSettings(surface, context)),
      m_meshID(surface.mesh->ID()),
      m_mirrorAxis(context.Settings().mirrorAxis),
      m_center(surface.center)
{}

void PointerStroke::Follow(const QPointF &from, const QPointF &to, ToolContext &context)
{
    const WorkSurface surface = drawingSurface(context);
    if (!isOn(surface))
        return;
    for (const QPointF &pixel : pixelsBetween(from, to)) {
        const SurfaceHit hit = hitOn(surface, context, pixel);
        if (hit.IsHit())
            m_stroke.Add(hit.point);
    }
}

QVector<CurveShape> PointerStroke::Finish(ToolContext &context) const
{
    const WorkSurface surface = drawingSurface(context);
    if (!isOn(surface) || m_stroke.Preview().isEmpty())
        return {};
    return m_stroke.Finish(*surface.locator);
}

QVector<ViewLine> PointerStroke::Lines() const
{
    const QVector<Vector> line = placesOf(m_stroke.Preview());
    if (line.isEmpty())
        return {};
    QVector<ViewLine> lines{{line, strokeColour(), 3.0f}};
    if (m_stroke.WouldClose())
        lines.append({{line.last(), line.first()}, companionColour(), 3.0f, true});
    if (m_mirrorAxis < 0)
        return lines;
    ViewLine partner{{}, companionColour(), 2.0f, true};
    for (const Vector &place : line)
        partner.places.append(mirroredPlace(place, m_mirrorAxis, m_center));
    lines.append(partner);
    return lines;
}

bool PointerStroke::isOn(const WorkSurface &surface) const
{
    return surface.IsUsable() && surface.mesh->ID() == m_meshID;
}

} // namespace orvane
