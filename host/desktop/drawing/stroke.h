// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

//! How strokes are drawn, all in scene units.
struct StrokeSettings
{
    float spacing = 1.0f;       // from point to point, above 0
    float smoothing = 1.0f;     // width over which jitter is evened out; 0 for none
    float closeDistance = 2.0f; // a stroke that ends as near to its start closes
    float longestBridge = 8.0f; // hits farther apart are not joined
};

//! A stroke while the pointer moves over a surface, and the curves it becomes.
//! Where the pointer leaves the surface and comes back, or leaps to another part of it, the gap is
//! bridged along the surface when it is no longer than longestBridge and the surface offers a way;
//! else the stroke is cut there and becomes several curves. It is also cut where it turns back on
//! itself so sharply that evenly spaced points cannot follow. What is shorter than half the spacing
//! is a click, or a slip of the hand, and becomes no curve.
class Stroke
{
public:
    explicit Stroke(const StrokeSettings &settings) : m_settings(settings) {}

    //! The pointer is over a point of the surface; what is bound to no face is ignored. Constant
    //! time.
    void Add(const SurfacePoint &hit);
    //! What to draw meanwhile: the way so far, thinned out, the pointer's last place included.
    const QVector<CurvePoint> &Preview() const { return m_hits; }
    //! Would it close if it ended now? Only a leap of the surface itself may yet prevent it.
    //! Constant time.
    bool WouldClose() const;
    //! The curves, in the order they were drawn: evenly spaced, every point on the surface.
    QVector<CurveShape> Finish(const SurfaceLocator &surface) const;

private:
    StrokeSettings m_settings;
    QVector<CurvePoint> m_hits; // the last one is the pointer's
    double m_length = 0.0;      // of the way, scene units, the stretch to the pointer left out
    bool m_isWhole = true;      // no gap so far is longer than a bridge
};

} // namespace orvane
