// SPDX-License-Identifier: MIT
#include "host/desktop/tools/jointool.h"

#include "host/desktop/drawing/curvejoining.h"
#include "host/desktop/tools/curvecommands.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/editedcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <orvane/geometry/orvanecurve.h>

namespace orvane {

ToolDescription JoinTool::Description() const
{
    return {
        QStringLiteral("join"), tr("Join"),
        tr("Drag from an end of a curve to another end to make them one, or press Enter to join "
           "two selected curves; Esc gives the drag up."),
        QKeySequence(Qt::Key_J)};
}

const OrvaneCurve *JoinTool::HoveredCurve() const
{
    return curveOfID(m_to.curve);
}

bool JoinTool::hover()
{
    const CurveEnd before = m_to;
    m_to = isPointerInside() ? endAt(pixel(), context()) : CurveEnd();
    return before.curve != m_to.curve || before.last != m_to.last;
}

bool JoinTool::begin(const PointerEvent &event)
{
    m_from = m_to = endAt(event.pixel, context());
    if (!m_from.IsEnd())
        context().ShowMessage(tr("Begin at an end of an open curve."));
    return m_from.IsEnd();
}

void JoinTool::drag(const PointerEvent &event)
{
    m_to = endAt(event.pixel, context());
}

void JoinTool::complete()
{
    OrvaneCurve *first = curveOfID(m_from.curve);
    OrvaneCurve *second = curveOfID(m_to.curve);
    const WorkSurface surface = first ? surfaceOf(*first, context()) : WorkSurface();
    if (!second || !surface.IsUsable() || (first == second && m_from.last == m_to.last))
        return;
    if (first == second) {
        CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Close Curve"));
        applyEdits({{first->ID(), closed(shapeOf(*first), *surface.locator)}}, step, context());
        return;
    }
    CurveSpace space({first, second});
    const CurveShape whole =
        joinedAt(shapeOf(*first), m_from.last, shapeOf(*second), m_to.last, surface);
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Join Curves"));
    if (step.Edit(*first, space.Settle(whole, *surface.locator)))
        step.Delete({second});
}

void JoinTool::workOnSelection()
{
    if (!joinSelectedCurves(context()))
        context().ShowMessage(tr("Select two open curves to join them."));
}

QVector<ViewLine> JoinTool::Lines() const
{
    return endMark(m_from) + endMark(m_to);
}

QVector<ViewShape> JoinTool::Shapes() const
{
    if (!m_from.IsEnd())
        return {};
    const QPointF start = context().ViewCamera().Project(m_from.point.position).pixel;
    return {{QPolygonF() << start << pixel(), false, strokeColour()}};
}

} // namespace orvane
