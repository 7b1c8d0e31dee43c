// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scenecleaner.h"

#include <QByteArray>

namespace orvane {
class Geometry;
class Operation;
class OrvaneCurve;
} // namespace orvane

//! Fixture of tests on the host's operations: a scene of three geometries and three curves.
class SampleScene : public SceneCleaner
{
protected:
    SampleScene();

    //! Empties scene and history and fills the scene anew, with the same numbers. In its order:
    //! Quad, a unit square at the origin, selected; Net, a curve of four points, on Quad but for
    //! its third, which is bound to nothing, and its fourth, which is on Triangle; Triangle,
    //! turned and moved, the active geometry and drawing surface; Loop, a closed curve on
    //! Triangle, selected; Tetrahedron, hidden; Loose, a hidden curve bound to nothing.
    static void fill();

    static orvane::Geometry *quad();
    static orvane::Geometry *triangle();
    static orvane::Geometry *tetrahedron();
    static orvane::OrvaneCurve *net();
    static orvane::OrvaneCurve *loop();
    static orvane::OrvaneCurve *loose();

    //! Does the operation, expects it done and its display text for undo, undoes and redoes it and
    //! undoes it again: the scene must be as it was before, and as it was after. It is left redone.
    static void expectDoUndoRedo(orvane::Operation &operation, const char *text);
    //! Expects the operation to answer false, with the scene and the history as they are.
    static void expectRefused(orvane::Operation &operation);
};
