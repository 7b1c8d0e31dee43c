// SPDX-License-Identifier: MIT
#include "host/desktop/tools/smoothtool.h"

#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/tools/brush.h"
#include "host/desktop/tools/curvecommands.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/editedcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/orvanecurve.h>

namespace orvane {

namespace {

CurveShape smoothedUnder(const Brush &brush, const CurveShape &shape, const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    const QVector<CurvePoint> smooth = drawnPoints(smoothed(shape, 1, surface));
    for (int i = 0; i < points.size() && i < smooth.size(); ++i) {
        const Vector from = points[i].position;
        const float strength = brush.Strength(from);
        if (strength > 0.0f)
            points[i] = onSurface(surface, from + (smooth[i].position - from) * strength);
    }
    return likeBefore(shape, points, surface);
}

} // namespace

ToolDescription SmoothTool::Description() const
{
    return {QStringLiteral("smooth"), tr("Smooth"),
            tr("Drag over curves to smooth them, or press Enter to smooth the selected ones; Esc "
               "gives the drag up."),
            QKeySequence(Qt::Key_S)};
}

bool SmoothTool::begin(const PointerEvent &event)
{
    rub(event.pixel);
    return true;
}

void SmoothTool::drag(const PointerEvent &event)
{
    for (const QPointF &place : pixelsBetween(pixel(), event.pixel))
        rub(place);
}

void SmoothTool::rub(const QPointF &pixel)
{
    const Brush brush = brushAt(pixel, context());
    if (!brush.IsOnSurface())
        return;
    for (const OrvaneCurve *curve : usableCurves()) {
        const CurveShape shape = m_shapes.value(curve->ID(), shapeOf(*curve));
        const WorkSurface surface = surfaceOf(*curve, context());
        if (brush.Reaches(shape) && surface.IsUsable())
            m_shapes[curve->ID()] = smoothedUnder(brush, shape, *surface.locator);
    }
}

void SmoothTool::complete()
{
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Smooth"));
    applyEdits(m_shapes, step, context());
}

void SmoothTool::workOnSelection()
{
    smoothSelectedCurves(context());
}

QVector<ViewLine> SmoothTool::Lines() const
{
    QVector<ViewLine> lines;
    for (const CurveShape &shape : m_shapes)
        lines.append({placesOf(shape.points), strokeColour(), 3.0f});
    return lines;
}

QVector<ViewShape> SmoothTool::Shapes() const
{
    return isPointerInside() ? brushOutline(pixel(), strokeColour(), context())
                             : QVector<ViewShape>();
}

} // namespace orvane
