// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>
#include <orvane/math/matrix.h>

#include <QVector>

namespace orvane {

class Geometry;

//! A curve of the scene and points for it.
struct PointsOfCurve
{
    int curveID = 0; // node number
    QVector<CurvePoint> points;
};

//! Are all at finite places?
bool areValid(const QVector<CurvePoint> &points);

//! The points of the curves that lie on the geometry, as they are once it stands at the world
//! matrix, which must have an inverse. A point on the geometry's surface stays on it; what is
//! off it, bound to nothing or to another mesh moves alike, so that a curve keeps its shape.
//! Geometry and curves are left as they are.
QVector<PointsOfCurve> pointsAfterMove(const Geometry &geometry, const Matrix &worldMatrix);

} // namespace orvane
