// SPDX-License-Identifier: MIT
#include "host/desktop/tools/newcurves.h"

#include "host/desktop/drawing/curveediting.h"
#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/runpast.h"
#include "host/desktop/drawing/stroke.h"
#include "host/desktop/tools/curvestep.h"
#include "host/desktop/tools/toolcontext.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const double SnapReach = 8.0;  // pixels
const float RunPast = 0.4f;    // fraction of the spacing
const float EvenUntil = 0.1f;  // unevenness of a curve that counts as even
const float FineUntil = 0.02f; // mean stretch, fraction of the surface's diagonal

bool isOwnPartner(const CurveShape &shape, const CurveShape &partner, float reach)
{
    QVector<Vector> line = placesOf(shape.points);
    if (shape.closed)
        line.append(line.first());
    return std::all_of(partner.points.cbegin(), partner.points.cend(),
                       [&](const CurvePoint &point) {
                           return nearestOnLine(line, point.position).distance <= reach;
                       });
}

} // namespace

Vector mirroredPlace(const Vector &place, int axis, const Vector &center)
{
    const Vector across = center - place;
    const float way = axis == 0 ? across.x : axis == 1 ? across.y : across.z;
    return place + Vector(axis == 0, axis == 1, axis == 2) * (2.0f * way);
}

QVector<CurveShape> withPartner(const CurveShape &shape, int axis, float reach,
                                const WorkSurface &surface)
{
    if (shape.points.size() < 2)
        return {shape};
    const CurveShape partner = mirrored(shape, axis, surface.center, *surface.locator);
    if (isOwnPartner(shape, partner, reach))
        return {shape};
    const auto isAtMiddle = [&](const CurvePoint &end) {
        const Vector across = mirroredPlace(end.position, axis, surface.center) - end.position;
        return across.Length() <= 2.0f * reach;
    };
    QVector<Vector> line = placesOf(shape.points);
    const bool startsThere = isAtMiddle(shape.points.first());
    const bool endsThere = isAtMiddle(shape.points.last());
    if (shape.closed || (!startsThere && !endsThere))
        return {shape, partner};
    QVector<Vector> other = placesOf(partner.points);
    std::reverse(other.begin(), other.end());
    // Through the middle without a step: between the two ends the way is as good as straight.
    line = endsThere ? line + other : other + line;
    const bool closes = startsThere && endsThere;
    if (closes)
        line.append(line.first());
    const CurveShape whole = evenlySpaced(line, closes, meanStretch(shape), *surface.locator);
    return {whole};
}

CurveShape ranPast(const CurveShape &shape, const CurveSpace &space, const WorkSurface &surface,
                   ToolContext &context)
{
    const float spacing = spacingOn(surface, context);
    const CurveShape past = runPast(shape, space.Lines(), tolerance(surface, context, SnapReach),
                                    RunPast * spacing, *surface.locator);
    if (placesOf(past.points) == placesOf(shape.points))
        return shape;
    return evenLike(shape, past, surface);
}

QVector<CurveShape> finishedCurves(const QVector<CurveShape> &shapes, CurveSpace &space,
                                   const WorkSurface &surface, ToolContext &context)
{
    const ToolSettings &settings = context.Settings();
    QVector<CurveShape> finished;
    for (const CurveShape &shape : shapes) {
        const CurveShape snapped = settings.snap ? ranPast(shape, space, surface, context) : shape;
        QVector<CurveShape> both{snapped};
        if (settings.mirrorAxis >= 0)
            both = withPartner(snapped, settings.mirrorAxis, tolerance(surface, context, SnapReach),
                               surface);
        for (const CurveShape &one : qAsConst(both)) {
            if (space.HasCopyOf(one))
                context.ShowMessage(
                    QCoreApplication::translate("CurveTools", "There is such a curve already."));
            else if (one.points.size() > 1)
                finished.append(space.Settle(one, *surface.locator));
        }
    }
    return finished;
}

void addNewCurves(const QVector<CurveShape> &shapes, CurveStep &step, const WorkSurface &surface,
                  ToolContext &context)
{
    CurveSpace space;
    for (const CurveShape &shape : finishedCurves(shapes, space, surface, context))
        step.Add(shape);
}

CurveShape evenLike(const CurveShape &original, const CurveShape &edited,
                    const WorkSurface &surface)
{
    const float spacing = meanStretch(original);
    const bool isFine = spacing > 0.0f && spacing <= FineUntil * surface.diagonal;
    if (!isFine || original.points.size() < 3 || unevenness(original) > EvenUntil)
        return edited;
    return resampled(edited, spacing, *surface.locator);
}

} // namespace orvane
