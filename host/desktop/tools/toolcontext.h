// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/screenpick.h"

#include <QCursor>
#include <QString>

namespace orvane {

class Camera;
class Geometry;

//! What people set for the curve tools.
struct ToolSettings
{
    float spacing = 0.005f;    // from point to point, fraction of the surface's diagonal
    float smoothing = 2.0f;    // width over which jitter is evened out, in spacings; 0 for none
    int mirrorAxis = -1;       // 0 x, 1 y, 2 z: what is drawn appears across the middle; -1: off
    bool snap = true;          // a stroke that ends at a curve runs a little past it
    double brushRadius = 24.0; // pixels
};

//! What the curve tools are given by the window they work in.
class ToolContext
{
public:
    virtual ~ToolContext() = default;

    virtual const Camera &ViewCamera() const = 0;
    virtual const ToolSettings &Settings() const = 0;
    //! The current level of the geometry as it is now; null while it has none. Kept between calls:
    //! tools ask with every move of the pointer.
    virtual const SurfaceLocator *Locator(const Geometry &geometry) = 0;
    //! What is shown and hides what is behind it.
    virtual SurfaceList VisibleSurfaces() = 0;

    //! A cross with the picture of the tool of that id.
    virtual QCursor ToolCursor(const QString &tool) = 0;
    //! The lines or shapes of the tool in hand have changed.
    virtual void Repaint() = 0;
    //! Tells the user something that fades soon.
    virtual void ShowMessage(const QString &text) = 0;
};

} // namespace orvane
