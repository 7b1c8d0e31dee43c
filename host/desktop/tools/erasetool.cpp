// SPDX-License-Identifier: MIT
#include "host/desktop/tools/erasetool.h"

#include "host/desktop/drawing/curvecutting.h"
#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/tools/brush.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/newcurves.h"
#include "host/desktop/tools/toolcolours.h"
#include "host/desktop/tools/toolcontext.h"

#include <orvane/geometry/orvanecurve.h>

#include <algorithm>

namespace orvane {

namespace {

double lengthOf(const CurveShape &shape)
{
    return lengthOf(placesOf(shape.points));
}

// What is worth keeping, the longest first. spacing: what new curves have, in scene units.
QVector<CurveShape> keptPieces(const CurveShape &original, const QVector<CurveShape> &pieces,
                               float spacing, const WorkSurface &surface)
{
    const double least = double(std::min(meanStretch(original), spacing));
    QVector<CurveShape> kept;
    for (const CurveShape &piece : pieces) {
        if (piece.points.size() > 1 && lengthOf(piece) >= least)
            kept.append(evenLike(original, piece, surface));
    }
    std::stable_sort(kept.begin(), kept.end(), [](const CurveShape &a, const CurveShape &b) {
        return lengthOf(a) > lengthOf(b);
    });
    return kept;
}

} // namespace

ToolDescription EraseTool::Description() const
{
    return {QStringLiteral("erase"), tr("Erase"),
            tr("Drag over curves to rub parts of them out; Enter ends it, Esc gives it up."),
            QKeySequence(Qt::Key_E)};
}

bool EraseTool::begin(const PointerEvent &event)
{
    rub(event.pixel);
    return true;
}

void EraseTool::drag(const PointerEvent &event)
{
    for (const QPointF &place : pixelsBetween(pixel(), event.pixel))
        rub(place);
}

void EraseTool::rub(const QPointF &pixel)
{
    const Brush brush = brushAt(pixel, context());
    if (!brush.IsOnSurface())
        return;
    for (const OrvaneCurve *curve : usableCurves()) {
        const CurveShape shape = shapeOf(*curve);
        if (!brush.Reaches(shape) || !surfaceOf(*curve, context()).IsUsable())
            continue;
        const int id = curve->ID();
        if (!m_touched.contains(id))
            m_touched.insert(id, {shape, {shape}, QVector<bool>(shape.points.size() - 1, false)});
        rubCurve(id, brush);
    }
}

void EraseTool::rubCurve(int id, const Brush &brush)
{
    Touched &touched = m_touched[id];
    const WorkSurface surface = surfaceOf(*curveOfID(id), context());
    QVector<CurveShape> pieces;
    for (const CurveShape &piece : qAsConst(touched.pieces))
        pieces += erased(piece, brush.center, brush.radius, *surface.locator);
    touched.pieces = pieces;
    const QVector<CurvePoint> &points = touched.original.points;
    for (int i = 0; i < touched.gone.size(); ++i) {
        const Vector middle = (points[i].position + points[i + 1].position) * 0.5f;
        if ((middle - brush.center).Length() <= brush.radius)
            touched.gone[i] = true;
    }
}

void EraseTool::complete()
{
    QVector<const OrvaneCurve *> curves;
    for (int id : m_touched.keys())
        curves.append(curveOfID(id));
    CurveSpace space(curves);
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Erase"));
    QVector<OrvaneCurve *> gone;
    for (auto it = m_touched.constBegin(); it != m_touched.constEnd(); ++it) {
        OrvaneCurve *curve = curveOfID(it.key());
        const WorkSurface surface = curve ? surfaceOf(*curve, context()) : WorkSurface();
        if (!surface.IsUsable())
            continue;
        const QVector<CurveShape> pieces =
            keptPieces(it->original, it->pieces, spacingOn(surface, context()), surface);
        if (pieces.isEmpty())
            gone.append(curve);
        for (int i = 0; i < pieces.size(); ++i) {
            const CurveShape piece = space.Settle(pieces[i], *surface.locator);
            if (i == 0)
                step.Edit(*curve, piece);
            else
                step.Add(piece, curve->Selected());
        }
    }
    step.Delete(gone);
}

QVector<ViewLine> EraseTool::Lines() const
{
    QVector<ViewLine> lines;
    for (const Touched &touched : m_touched) {
        const QVector<Vector> line = placesOf(touched.original.points);
        for (int i = 0; i < touched.gone.size(); ++i) {
            if (!touched.gone[i])
                continue;
            if (i > 0 && touched.gone[i - 1])
                lines.last().places.append(line[i + 1]);
            else
                lines.append({{line[i], line[i + 1]}, removalColour(), 5.0f});
        }
    }
    return lines;
}

QVector<ViewShape> EraseTool::Shapes() const
{
    return isPointerInside() ? brushOutline(pixel(), removalColour(), context())
                             : QVector<ViewShape>();
}

} // namespace orvane
