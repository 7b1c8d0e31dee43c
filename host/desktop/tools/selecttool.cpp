// SPDX-License-Identifier: MIT
#include "host/desktop/tools/selecttool.h"

#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/scenecurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/orvanecurve.h>

#include <QLineF>

namespace orvane {

namespace {

const double ClickReach = 10.0; // pixels
const double LeastDrag = 5.0;   // pixels: a shorter one is a click
const double LassoStep = 2.0;   // pixels

const OrvaneCurve *curveUnder(const QPointF &pixel, ToolContext &context)
{
    return curveAt(context.ViewCamera(), usableCurves(), pixel, ClickReach,
                   context.VisibleSurfaces())
        .curve;
}

} // namespace

ToolDescription SelectTool::Description() const
{
    if (m_area == Lasso)
        return {QStringLiteral("lasso"), tr("Lasso"),
                tr("Draw around curves to select them; Shift adds, Ctrl removes, Esc gives it up."),
                QKeySequence(Qt::Key_W)};
    return {QStringLiteral("select"), tr("Select"),
            tr("Click a curve or drag a box to select; Shift adds, Ctrl removes, Esc gives it up."),
            QKeySequence(Qt::Key_Q)};
}

const OrvaneCurve *SelectTool::HoveredCurve() const
{
    return IsBusy() ? nullptr : curveOfID(m_hovered);
}

bool SelectTool::hover()
{
    const OrvaneCurve *curve = isPointerInside() ? curveUnder(pixel(), context()) : nullptr;
    const int before = m_hovered;
    m_hovered = curve ? curve->ID() : 0;
    return m_hovered != before;
}

bool SelectTool::begin(const PointerEvent &event)
{
    m_way = QPolygonF() << event.pixel;
    m_modifiers = event.modifiers;
    return true;
}

void SelectTool::drag(const PointerEvent &event)
{
    m_modifiers = event.modifiers;
    if (m_area == Box)
        m_way = QPolygonF() << m_way.first() << event.pixel;
    else if (QLineF(m_way.last(), event.pixel).length() >= LassoStep)
        m_way.append(event.pixel);
}

bool SelectTool::isClick() const
{
    const QRectF bounds = m_way.boundingRect();
    return qMax(bounds.width(), bounds.height()) < LeastDrag;
}

QPolygonF SelectTool::outline() const
{
    return m_area == Box ? QPolygonF(m_way.boundingRect()) : m_way;
}

QVector<const OrvaneCurve *> SelectTool::found() const
{
    if (isClick()) {
        const OrvaneCurve *curve = curveUnder(m_way.first(), context());
        return curve ? QVector<const OrvaneCurve *>{curve} : QVector<const OrvaneCurve *>();
    }
    return curvesInLasso(context().ViewCamera(), usableCurves(), outline(), Inside::APart,
                         context().VisibleSurfaces());
}

void SelectTool::complete()
{
    const QVector<const OrvaneCurve *> curves = found();
    const bool adds = m_modifiers & Qt::ShiftModifier;
    const bool removes = m_modifiers & Qt::ControlModifier;
    CurveStep step;
    step.Select(sceneCurvesThat([&](const OrvaneCurve &curve) {
        const bool isFound = curves.contains(&curve);
        if (removes)
            return curve.Selected() && !isFound;
        return isFound || (adds && curve.Selected());
    }));
}

QVector<ViewShape> SelectTool::Shapes() const
{
    if (!IsBusy() || isClick())
        return {};
    return {{outline(), true, strokeColour()}};
}

} // namespace orvane
