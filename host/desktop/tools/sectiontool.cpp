// SPDX-License-Identifier: MIT
#include "host/desktop/tools/sectiontool.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/sectionline.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <QLineF>
#include <QSet>

namespace orvane {

namespace {

const double LeastDrag = 5.0; // pixels: a shorter line has no direction

Ray rayThrough(const Camera &camera, const QPointF &pixel)
{
    const ViewRay ray = camera.RayThrough(pixel);
    return {ray.origin, ray.direction};
}

int nearestShape(const QVector<CurveShape> &shapes, const Vector &place)
{
    int nearest = -1;
    float least = 0.0f;
    for (int i = 0; i < shapes.size(); ++i) {
        const float distance = nearestOnLine(placesOf(shapes[i].points), place).distance;
        if (nearest >= 0 && distance >= least)
            continue;
        nearest = i;
        least = distance;
    }
    return nearest;
}

} // namespace

ToolDescription SectionTool::Description() const
{
    return {QStringLiteral("section"), tr("Section Line"),
            tr("Drag a straight line across the model to cut it there; Shift takes the whole loop, "
               "Enter ends it, Esc gives it up."),
            QKeySequence(Qt::Key_X)};
}

bool SectionTool::begin(const PointerEvent &event)
{
    if (!drawingSurface(context()).IsUsable()) {
        context().ShowMessage(tr("There is no visible mesh to cut."));
        return false;
    }
    m_from = m_to = event.pixel;
    return true;
}

void SectionTool::drag(const PointerEvent &event)
{
    const bool whole = event.modifiers & Qt::ShiftModifier;
    if (event.pixel == m_to && whole == m_whole)
        return;
    m_to = event.pixel;
    m_whole = whole;
    m_shapes = cut(drawingSurface(context()));
}

bool SectionTool::isCut() const
{
    return QLineF(m_from, m_to).length() >= LeastDrag;
}

QVector<CurveShape> SectionTool::cut(const WorkSurface &surface)
{
    if (!isCut() || !surface.IsUsable())
        return {};
    if (m_whole)
        return wholeLoops(surface);
    const Camera &camera = context().ViewCamera();
    return straightSection(m_cutters.CutterOf(*surface.mesh), rayThrough(camera, m_from),
                           rayThrough(camera, m_to), spacingOn(surface, context()),
                           *surface.locator);
}

// Those loops that the line was drawn over, not what the plane cuts elsewhere.
QVector<CurveShape> SectionTool::wholeLoops(const WorkSurface &surface)
{
    const Camera &camera = context().ViewCamera();
    const Ray from = rayThrough(camera, m_from);
    const Ray to = rayThrough(camera, m_to);
    const Vector normal = from.direction & (to.origin + to.direction - from.origin);
    if (!(normal.LengthSquared() > 0.0f))
        return {};
    const QVector<CurveShape> all =
        sectionCurves(m_cutters.CutterOf(*surface.mesh), {from.origin, Normalized(normal)},
                      spacingOn(surface, context()), *surface.locator);
    QSet<int> met;
    for (const QPointF &pixel : pixelsBetween(m_from, m_to)) {
        const SurfaceHit hit = hitOn(surface, context(), pixel);
        if (hit.IsHit())
            met.insert(nearestShape(all, hit.point.WorldPosition()));
    }
    QVector<CurveShape> loops;
    for (int i = 0; i < all.size(); ++i) {
        if (met.contains(i))
            loops.append(all[i]);
    }
    return loops;
}

void SectionTool::complete()
{
    // Cut anew: the scene may have changed under the preview.
    const WorkSurface surface = drawingSurface(context());
    const QVector<CurveShape> shapes = cut(surface);
    if (shapes.isEmpty())
        return;
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Section Line"));
    addNewCurves(shapes, step, surface, context());
}

QVector<ViewLine> SectionTool::Lines() const
{
    QVector<ViewLine> lines;
    for (const CurveShape &shape : m_shapes)
        lines.append({placesOf(shape.points), companionColour(), 3.0f});
    return lines;
}

QVector<ViewShape> SectionTool::Shapes() const
{
    if (!IsBusy())
        return {};
    return {{QPolygonF() << m_from << m_to, false, strokeColour()}};
}

} // namespace orvane
