// SPDX-License-Identifier: MIT
#include "host/desktop/tools/extendtool.h"

#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/drawing/curvejoining.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/orvanecurve.h>

namespace orvane {

namespace {

const double CloseReach = 10.0; // pixels
const int LeastToClose = 8;     // count of points: a shorter curve never got away from its start

bool isOnDrawingSurface(const OrvaneCurve &curve, ToolContext &context)
{
    const WorkSurface drawing = drawingSurface(context);
    return drawing.IsUsable() && surfaceOf(curve, context).mesh == drawing.mesh;
}

CurveShape closedIfBackAtStart(const CurveShape &shape, const WorkSurface &surface,
                               ToolContext &context)
{
    const Vector gap = shape.points.last().position - shape.points.first().position;
    if (shape.points.size() < LeastToClose
        || gap.Length() > tolerance(surface, context, CloseReach))
        return shape;
    return closed(shape, *surface.locator);
}

} // namespace

ToolDescription ExtendTool::Description() const
{
    return {
        QStringLiteral("extend"), tr("Extend"),
        tr("Drag from an end of a curve to draw on from there; back at its other end it closes; "
           "Enter ends it, Esc gives it up."),
        QKeySequence(Qt::Key_C)};
}

const OrvaneCurve *ExtendTool::HoveredCurve() const
{
    return curveOfID(m_end.curve);
}

bool ExtendTool::hover()
{
    const CurveEnd before = m_end;
    m_end = isPointerInside() ? endAt(pixel(), context()) : CurveEnd();
    return before.curve != m_end.curve || before.last != m_end.last;
}

bool ExtendTool::begin(const PointerEvent &event)
{
    m_end = endAt(event.pixel, context());
    if (!m_end.IsEnd()) {
        context().ShowMessage(tr("Begin at an end of an open curve."));
        return false;
    }
    if (!isOnDrawingSurface(*curveOfID(m_end.curve), context())) {
        context().ShowMessage(tr("This curve does not lie on the mesh that is drawn on."));
        return false;
    }
    m_stroke.emplace(drawingSurface(context()), context());
    m_stroke->GoThrough(m_end.point.surfacePoint);
    return true;
}

void ExtendTool::drag(const PointerEvent &event)
{
    m_stroke->Follow(pixel(), event.pixel, context());
}

void ExtendTool::complete()
{
    const OrvaneCurve *curve = curveOfID(m_end.curve);
    const QVector<CurveShape> strokes = m_stroke->Finish(context());
    if (!curve || curve->Closed() || strokes.isEmpty())
        return;
    const WorkSurface surface = drawingSurface(context());
    const CurveShape original = shapeOf(*curve);
    // A stroke that came back to where it began is no loop of its own here.
    const CurveShape stroke = opened(strokes.first());
    CurveShape shape = joinedAt(original, m_end.last, stroke, false, surface);
    CurveSpace space({curve});
    shape = closedIfBackAtStart(shape, surface, context());
    if (context().Settings().snap)
        shape = ranPast(shape, space, surface, context());
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Extend Curve"));
    step.Edit(*curve, space.Settle(shape, *surface.locator));
    for (const CurveShape &rest : finishedCurves(strokes.mid(1), space, surface, context()))
        step.Add(rest);
}

QVector<ViewLine> ExtendTool::Lines() const
{
    return endMark(m_end) + (m_stroke ? m_stroke->Lines() : QVector<ViewLine>());
}

} // namespace orvane
