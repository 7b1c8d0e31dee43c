// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacepoint.h>

#include <QPolygonF>
#include <QVector>

namespace orvane {

class Camera;
class OrvaneCurve;
class SurfaceLocator;

//! The surfaces of a scene that are shown: what can be hit, and what hides.
using SurfaceList = QVector<const SurfaceLocator *>;

//! A place on one of several surfaces.
struct SurfaceHit
{
    bool IsHit() const { return surface >= 0; }

    int surface = -1; // its place in the list
    SurfacePoint point;
    double depth = 0.0; // scene units before the eye
};

//! The nearest place under a pixel; equally near ones: the first surface.
SurfaceHit surfaceAt(const Camera &camera, const SurfaceList &surfaces, const QPointF &pixel);

//! A place on a curve, between its point number segment and the next.
struct CurveHit
{
    const OrvaneCurve *curve = nullptr; // null when there is none
    int segment = 0;
    float fraction = 0.0f; // of the segment, in the scene
    Vector place;
    double distance = 0.0; // pixels from the pointer
    double depth = 0.0;    // scene units before the eye
};

//! The curve under a pixel, at most tolerance pixels away. A curve that is clearly before another
//! wins, or else the one nearer to the pixel: ten pixels of depth count as one across. What a
//! surface hides is not found; without surfaces everything is. Curves of which tools make no use
//! are passed by.
CurveHit curveAt(const Camera &camera, const QVector<const OrvaneCurve *> &curves,
                 const QPointF &pixel, double tolerance, const SurfaceList &surfaces = {});

enum class Inside {
    APart, //!< some of the curve, be it no point of its own
    All    //!< every point
};

//! The curves inside a lasso, in pixels and closed of itself; where it crosses itself, all its
//! loops are inside. What a surface hides has no say: a curve of which nothing is seen is not
//! inside.
QVector<const OrvaneCurve *> curvesInLasso(const Camera &camera,
                                           const QVector<const OrvaneCurve *> &curves,
                                           const QPolygonF &lasso, Inside how,
                                           const SurfaceList &surfaces = {});
//! The same for a rectangle, whichever of its corners was first.
QVector<const OrvaneCurve *> curvesInRectangle(const Camera &camera,
                                               const QVector<const OrvaneCurve *> &curves,
                                               const QRectF &rectangle, Inside how,
                                               const SurfaceList &surfaces = {});

} // namespace orvane
