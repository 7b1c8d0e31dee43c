// SPDX-License-Identifier: MIT
#include "host/desktop/tools/drawtool.h"

#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcontext.h"

namespace orvane {

ToolDescription DrawTool::Description() const
{
    return {
        QStringLiteral("draw"), tr("Draw"),
        tr("Drag over the surface to draw a curve; it closes when it ends near its start; Enter "
           "ends it, Esc gives it up."),
        QKeySequence(Qt::Key_D)};
}

bool DrawTool::begin(const PointerEvent &event)
{
    const WorkSurface surface = drawingSurface(context());
    if (!surface.IsUsable()) {
        context().ShowMessage(tr("There is no visible mesh to draw on."));
        return false;
    }
    m_stroke.emplace(surface, context());
    m_stroke->Follow(event.pixel, event.pixel, context());
    return true;
}

void DrawTool::drag(const PointerEvent &event)
{
    m_stroke->Follow(pixel(), event.pixel, context());
}

void DrawTool::complete()
{
    const QVector<CurveShape> shapes = m_stroke->Finish(context());
    if (shapes.isEmpty())
        return;
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Draw Stroke"));
    addNewCurves(shapes, step, drawingSurface(context()), context());
}

QVector<ViewLine> DrawTool::Lines() const
{
    return m_stroke ? m_stroke->Lines() : QVector<ViewLine>();
}

} // namespace orvane
