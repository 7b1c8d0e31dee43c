// SPDX-License-Identifier: MIT
#include "host/desktop/tools/editedcurves.h"

#include "host/desktop/tools/curvestep.h"

#include <orvane/geometry/orvanecurve.h>

namespace orvane {

bool applyEdits(const QMap<int, CurveShape> &shapes, CurveStep &step, ToolContext &context)
{
    QVector<const OrvaneCurve *> curves;
    for (int id : shapes.keys())
        curves.append(curveOfID(id));
    CurveSpace space(curves);
    bool hasChanged = false;
    for (auto it = shapes.constBegin(); it != shapes.constEnd(); ++it) {
        const OrvaneCurve *curve = curveOfID(it.key());
        const WorkSurface surface = curve ? surfaceOf(*curve, context) : WorkSurface();
        if (!surface.IsUsable())
            continue;
        const CurveShape even = evenLike(shapeOf(*curve), it.value(), surface);
        hasChanged |= step.Edit(*curve, space.Settle(even, *surface.locator));
    }
    return hasChanged;
}

} // namespace orvane
