// SPDX-License-Identifier: MIT
#include "host/desktop/tools/movetool.h"

#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/editedcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <orvane/geometry/orvanecurve.h>

#include <algorithm>

namespace orvane {

namespace {

const double GripReach = 10.0;     // pixels
const double FalloffBrushes = 4.0; // brush radii
const float LeastFalloff = 3.0f;   // mean stretches

CurveHit curveUnder(const QPointF &pixel, ToolContext &context)
{
    return curveAt(context.ViewCamera(), usableCurves(), pixel, GripReach,
                   context.VisibleSurfaces());
}

} // namespace

ToolDescription MoveTool::Description() const
{
    return {
        QStringLiteral("move"), tr("Move Points"),
        tr("Drag a curve to pull it along the surface, softly to both sides; Shift moves all of "
           "it, Enter ends it, Esc gives it up."),
        QKeySequence(Qt::Key_G)};
}

const OrvaneCurve *MoveTool::HoveredCurve() const
{
    return curveOfID(m_hovered);
}

QCursor MoveTool::Cursor() const
{
    return IsBusy() ? Qt::ClosedHandCursor : m_hovered ? Qt::OpenHandCursor : Qt::ArrowCursor;
}

bool MoveTool::hover()
{
    const CurveHit hit = isPointerInside() ? curveUnder(pixel(), context()) : CurveHit();
    const int before = m_hovered;
    m_hovered = hit.curve ? hit.curve->ID() : 0;
    return m_hovered != before;
}

bool MoveTool::begin(const PointerEvent &event)
{
    const CurveHit hit = curveUnder(event.pixel, context());
    if (!hit.curve || !surfaceOf(*hit.curve, context()).IsUsable())
        return false;
    m_curve = m_hovered = hit.curve->ID();
    m_shape = shapeOf(*hit.curve);
    const int point = hit.segment + (hit.fraction > 0.5f ? 1 : 0);
    m_point = point % drawnPoints(m_shape).size(); // the closing point is as good as the first
    m_grip = hit.place;
    m_depth = hit.depth;
    const double brush = context().Settings().brushRadius * FalloffBrushes;
    m_reach = std::max(LeastFalloff * meanStretch(m_shape),
                       float(brush * context().ViewCamera().PixelSize(hit.depth)));
    return true;
}

void MoveTool::drag(const PointerEvent &event)
{
    const OrvaneCurve *curve = curveOfID(m_curve);
    const WorkSurface surface = curve ? surfaceOf(*curve, context()) : WorkSurface();
    if (!surface.IsUsable() || event.pixel == pixel())
        return;
    const SurfaceHit hit = hitOn(surface, context(), event.pixel);
    const Vector target = hit.IsHit() ? hit.point.WorldPosition()
                                      : context().ViewCamera().PointAt(event.pixel, m_depth);
    const CurveShape original = shapeOf(*curve);
    const bool whole = event.modifiers & Qt::ShiftModifier;
    m_shape = whole ? shifted(original, target - m_grip, *surface.locator)
                    : moved(original, m_point, target - m_grip, m_reach, *surface.locator);
}

void MoveTool::complete()
{
    const OrvaneCurve *curve = curveOfID(m_curve);
    if (!curve || placesOf(m_shape.points) == placesOf(curve->Points()))
        return;
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Move Points"));
    applyEdits({{m_curve, m_shape}}, step, context());
}

void MoveTool::forget()
{
    m_curve = 0;
    m_shape = CurveShape();
}

QVector<ViewLine> MoveTool::Lines() const
{
    if (m_shape.points.size() < 2)
        return {};
    return {{placesOf(m_shape.points), strokeColour(), 3.0f, false, true}};
}

} // namespace orvane
