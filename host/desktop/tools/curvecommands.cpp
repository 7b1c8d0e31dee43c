// SPDX-License-Identifier: MIT
#include "host/desktop/tools/curvecommands.h"

#include "host/desktop/drawing/curvecontact.h"
#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/drawing/curvejoining.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/editedcurves.h"
#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/camera.h"

#include <orvane/geometry/orvanecurve.h>

#include <QCoreApplication>

namespace orvane {

namespace {

const float BesideSteps = 4.0f; // mean stretches: how far beside its curve a copy lies
const int SmoothingSteps = 4;   // count

using Edit = std::function<CurveShape(const CurveShape &, const WorkSurface &)>;
using Test = std::function<bool(const OrvaneCurve &)>;

// Edits what is selected and passes the test.
bool editSelected(const char *title, ToolContext &context, const Test &fits, const Edit &edit)
{
    QVector<OrvaneCurve *> curves;
    for (OrvaneCurve *curve : selectedCurves()) {
        if (fits(*curve) && surfaceOf(*curve, context).IsUsable())
            curves.append(curve);
    }
    CurveSpace space({curves.cbegin(), curves.cend()});
    CurveStep step(title);
    for (const OrvaneCurve *curve : qAsConst(curves)) {
        const WorkSurface surface = surfaceOf(*curve, context);
        const CurveShape shape = edit(shapeOf(*curve), surface);
        step.Edit(*curve, space.Settle(shape, *surface.locator));
    }
    return !step.IsEmpty();
}

bool isAny(const OrvaneCurve &)
{
    return true;
}

bool isClosed(const OrvaneCurve &curve)
{
    return curve.Closed();
}

bool isOpen(const OrvaneCurve &curve)
{
    return !curve.Closed();
}

// Where no other curve is touched, if there is such a place near by: along itself a straight curve
// would lie on itself again.
CurveShape beside(const CurveShape &shape, const CurveSpace &space, const WorkSurface &surface,
                  ToolContext &context)
{
    const Camera &camera = context.ViewCamera();
    const Vector right = camera.RightAxis();
    const Vector up = camera.UpAxis();
    const float size = BesideSteps * meanStretch(shape);
    CurveShape copy;
    for (const Vector &direction : {right - up, right + up, right, up, camera.BackAxis()}) {
        copy = shifted(shape, Normalized(direction) * size, *surface.locator);
        if (!touches(placesOf(copy.points), space.Lines()))
            break;
    }
    return copy;
}

bool select(const Test &are)
{
    CurveStep step;
    return step.Select(sceneCurvesThat(are));
}

bool show(bool visible, const Test &are)
{
    CurveStep step(visible ? QT_TRANSLATE_NOOP("UndoStep", "Show Curves")
                           : QT_TRANSLATE_NOOP("UndoStep", "Hide Curves"));
    return step.Show(sceneCurvesThat(are), visible);
}

} // namespace

bool deleteSelectedCurves()
{
    CurveStep step;
    return step.Delete(selectedCurves());
}

bool duplicateSelectedCurves(ToolContext &context)
{
    CurveSpace space;
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Duplicate Curves"));
    QVector<CurveShape> copies;
    for (const OrvaneCurve *curve : selectedCurves()) {
        const WorkSurface surface = surfaceOf(*curve, context);
        if (!surface.IsUsable())
            continue;
        const CurveShape original = shapeOf(*curve);
        const CurveShape copy =
            evenLike(original, beside(original, space, surface, context), surface);
        copies.append(space.Settle(copy, *surface.locator));
    }
    const int before = sceneCurves().size();
    for (const CurveShape &copy : qAsConst(copies))
        step.Add(copy);
    if (!step.IsEmpty())
        step.Select(sceneCurves().mid(before));
    return !step.IsEmpty();
}

bool mirrorSelectedCurves(ToolContext &context, int axis)
{
    QMap<int, CurveShape> joined; // with their partners, across the middle
    QVector<QPair<CurveShape, WorkSurface>> partners;
    for (const OrvaneCurve *curve : selectedCurves()) {
        const WorkSurface surface = surfaceOf(*curve, context);
        if (!surface.IsUsable())
            continue;
        const CurveShape shape = shapeOf(*curve);
        const QVector<CurveShape> both = withPartner(shape, axis, meanStretch(shape), surface);
        if (both.size() > 1)
            partners.append({evenLike(shape, both.last(), surface), surface});
        else if (placesOf(both.first().points) != placesOf(shape.points))
            joined.insert(curve->ID(), both.first());
    }
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Mirror Curves"));
    const bool hasJoined = applyEdits(joined, step, context);
    CurveSpace space;
    for (const auto &partner : qAsConst(partners))
        step.Add(space.Settle(partner.first, *partner.second.locator));
    return hasJoined || !step.IsEmpty();
}

bool closeSelectedCurves(ToolContext &context)
{
    return editSelected(QT_TRANSLATE_NOOP("UndoStep", "Close Curves"), context, isOpen,
                        [](const CurveShape &shape, const WorkSurface &surface) {
                            return evenLike(shape, closed(shape, *surface.locator), surface);
                        });
}

bool openSelectedCurves(ToolContext &context)
{
    return editSelected(QT_TRANSLATE_NOOP("UndoStep", "Open Curves"), context, isClosed,
                        [](const CurveShape &shape, const WorkSurface &) { return opened(shape); });
}

bool reverseSelectedCurves(ToolContext &context)
{
    return editSelected(QT_TRANSLATE_NOOP("UndoStep", "Reverse Curves"), context, isAny,
                        [](const CurveShape &shape, const WorkSurface &surface) {
                            return reversed(shape, *surface.locator);
                        });
}

bool resampleSelectedCurves(ToolContext &context)
{
    return editSelected(QT_TRANSLATE_NOOP("UndoStep", "Space Evenly"), context, isAny,
                        [&context](const CurveShape &shape, const WorkSurface &surface) {
                            return resampled(shape, spacingOn(surface, context), *surface.locator);
                        });
}

bool smoothSelectedCurves(ToolContext &context)
{
    return editSelected(QT_TRANSLATE_NOOP("UndoStep", "Smooth Curves"), context, isAny,
                        [](const CurveShape &shape, const WorkSurface &surface) {
                            return evenLike(
                                shape, smoothed(shape, SmoothingSteps, *surface.locator), surface);
                        });
}

bool joinSelectedCurves(ToolContext &context)
{
    const QVector<OrvaneCurve *> curves = selectedCurves();
    if (curves.size() != 2 || curves[0]->Closed() || curves[1]->Closed())
        return false;
    const WorkSurface surface = surfaceOf(*curves[0], context);
    if (!surface.IsUsable())
        return false;
    const CurveShape first = shapeOf(*curves[0]);
    const CurveShape whole = joined(first, shapeOf(*curves[1]), *surface.locator);
    CurveSpace space({curves[0], curves[1]});
    CurveStep step(QT_TRANSLATE_NOOP("UndoStep", "Join Curves"));
    step.Edit(*curves[0], space.Settle(evenLike(first, whole, surface), *surface.locator));
    return !step.IsEmpty() && step.Delete({curves[1]});
}

bool selectAllCurves()
{
    return select([](const OrvaneCurve &curve) { return !curve.IsHidden(); });
}

bool selectNoCurves()
{
    return select([](const OrvaneCurve &) { return false; });
}

bool invertCurveSelection()
{
    return select([](const OrvaneCurve &curve) { return !curve.IsHidden() && !curve.Selected(); });
}

bool hideSelectedCurves()
{
    return show(false,
                [](const OrvaneCurve &curve) { return curve.Selected() && !curve.IsHidden(); });
}

bool hideUnselectedCurves()
{
    return show(false,
                [](const OrvaneCurve &curve) { return !curve.Selected() && !curve.IsHidden(); });
}

bool showAllCurves()
{
    return show(true, [](const OrvaneCurve &curve) { return curve.IsHidden(); });
}

} // namespace orvane
