// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

#include <functional>

namespace orvane {

class OrvaneCurve;

//! Questions about the curves of the kernel's scene, each in the scene's order.

QVector<OrvaneCurve *> sceneCurves();
QVector<OrvaneCurve *> sceneCurvesThat(const std::function<bool(const OrvaneCurve &)> &are);
//! What tools work with: visible, of at least two points.
QVector<const OrvaneCurve *> usableCurves();
//! Those of them that are selected.
QVector<OrvaneCurve *> selectedCurves();
//! Null when the scene has no such curve any more.
OrvaneCurve *curveOfID(int id);

CurveShape shapeOf(const OrvaneCurve &curve);
//! Mean length of the stretches between points, in scene units; 0 below two points.
float meanStretch(const CurveShape &shape);

//! The lines of curves that changed and new ones have to keep clear of: a point of one curve on
//! another would be no crossing.
class CurveSpace
{
public:
    //! The curves of the scene, hidden ones, too, but for those that are about to change.
    explicit CurveSpace(const QVector<const OrvaneCurve *> &leftOut = {});

    const QVector<QVector<Vector>> &Lines() const { return m_lines; }
    //! Is there a line that runs all along the shape, and no farther?
    bool HasCopyOf(const CurveShape &shape) const;

    //! The shape, clear of all that is here, and from now on here itself.
    CurveShape Settle(const CurveShape &shape, const SurfaceLocator &surface);

private:
    QVector<QVector<Vector>> m_lines;
};

} // namespace orvane
