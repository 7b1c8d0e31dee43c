// SPDX-License-Identifier: MIT
#include "host/desktop/tools/looptool.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/sectionline.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/mesh.h>

#include <QLineF>

#include <algorithm>

namespace orvane {

namespace {

const double LeastDrag = 6.0;       // pixels: a shorter one is a click
const int LeastPoints = 12;         // count: a thin limb is round, too
const int LargestToPropose = 60000; // faces: on more the pointer would wait for the cuts

} // namespace

ToolDescription LoopTool::Description() const
{
    return {QStringLiteral("loop"), tr("Loop"),
            tr("Click a limb for the loop around it, or drag along it for a loop square to the "
               "drag; Esc gives it up."),
            QKeySequence(Qt::Key_L)};
}

bool LoopTool::begin(const PointerEvent &event)
{
    const WorkSurface surface = drawingSurface(context());
    if (!hitOn(surface, context(), event.pixel).IsHit()) {
        context().ShowMessage(tr("Begin on the mesh to lay a loop."));
        return false;
    }
    m_from = m_to = event.pixel;
    return true;
}

void LoopTool::drag(const PointerEvent &event)
{
    if (event.pixel == m_to)
        return;
    m_to = event.pixel;
    const bool isDrag = QLineF(m_from, m_to).length() >= LeastDrag;
    m_loop = isDrag ? loop(drawingSurface(context())) : CurveShape();
}

bool LoopTool::hover()
{
    m_from = m_to = pixel();
    const WorkSurface surface = drawingSurface(context());
    const bool proposes =
        isPointerInside() && surface.IsUsable() && surface.mesh->FaceCount() <= LargestToPropose;
    const bool hadLoop = !m_loop.points.isEmpty();
    m_loop = proposes ? loop(surface) : CurveShape();
    return hadLoop || !m_loop.points.isEmpty();
}

CurveShape LoopTool::loop(const WorkSurface &surface)
{
    const SurfaceHit first = hitOn(surface, context(), m_from);
    if (!first.IsHit())
        return {};
    const MeshCutter &cutter = m_cutters.CutterOf(*surface.mesh);
    Plane plane;
    if (QLineF(m_from, m_to).length() < LeastDrag) {
        plane = shortestLoopPlane(cutter, first.point);
    } else {
        const SurfaceHit last = hitOn(surface, context(), m_to);
        if (last.IsHit())
            plane = planeAcross(first.point.WorldPosition(), last.point.WorldPosition());
    }
    if (!(plane.normal.LengthSquared() > 0.0f))
        return {};
    const float spacing = spacingOn(surface, context());
    const CurveShape shape = loopAround(cutter, plane, spacing, *surface.locator);
    const float finer = float(lengthOf(placesOf(shape.points))) / float(LeastPoints);
    if (shape.points.size() > LeastPoints || !(finer > 0.0f))
        return shape;
    return loopAround(cutter, plane, std::min(spacing, finer), *surface.locator);
}

void LoopTool::complete()
{
    const WorkSurface surface = drawingSurface(context());
    const CurveShape shape = loop(surface);
    if (shape.points.isEmpty()) {
        context().ShowMessage(tr("No loop closes around the mesh here."));
        return;
    }
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Loop"));
    addNewCurves({shape}, step, surface, context());
}

QVector<ViewLine> LoopTool::Lines() const
{
    if (m_loop.points.isEmpty())
        return {};
    return {{placesOf(m_loop.points), companionColour(), 3.0f, true}};
}

} // namespace orvane
