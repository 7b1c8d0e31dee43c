// SPDX-License-Identifier: MIT
#pragma once

namespace orvane {

enum class Shading { Smooth, Flat, Matcap };

//! What of the scene is shown, and how. Faults are a preference of the kernel.
struct ViewOptions
{
    Shading shading = Shading::Smooth;
    bool wireframe = false;   // the edges of all polygons
    bool xRay = false;        // surfaces let through what is behind them
    bool dimSource = true;    // the drawing surface steps back behind a mesh made on it
    bool showGrid = true;     // on the ground
    bool showGizmo = true;    // the axes in a corner
    bool showHud = true;      // the heads-up line
    bool curvePoints = false; // the points of curves as dots
};

} // namespace orvane
