// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>

#include <QVector>

namespace orvane {

class SurfaceLocator;

//! What a curve tool makes, as an operation stores it. The points of a closed one end with its
//! closing point.
struct CurveShape
{
    QVector<CurvePoint> points;
    bool closed = false;
};

//! All but the closing point.
QVector<CurvePoint> drawnPoints(const CurveShape &shape);

QVector<Vector> placesOf(const QVector<CurvePoint> &points);

//! The closest point of the surface; bound to none, at the place, where the mesh has no face.
CurvePoint onSurface(const SurfaceLocator &surface, const Vector &place);

//! A closed curve through the drawn points, its closing point added. Fewer than three points
//! can enclose nothing, and a last one on the first, or as near as numbers tell apart, leaves no
//! closing stretch: the curve stays open.
CurveShape closedThrough(const QVector<CurvePoint> &drawn, const SurfaceLocator &surface);

//! The drawn points as a curve that is closed or not, as the shape was.
CurveShape likeBefore(const CurveShape &shape, const QVector<CurvePoint> &drawn,
                      const SurfaceLocator &surface);

} // namespace orvane
