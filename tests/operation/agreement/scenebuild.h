// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/agreement/polygonizer.h"

struct PlanarScene;

//! One connected piece of the crossing graph, as built, and the mesh made of it.
struct ScenePiece
{
    PlanarGraph graph;              // by vertex number of the mesh
    QVector<QVector<int>> polygons; // of the mesh; empty when none was made
};

//! Draws the scene on a sheet of its own in the kernel's scene, creates the meshes through the
//! kernel with the face limit, faults accepted, and answers every piece. What the kernel's scene
//! and undo queue held before is gone.
QVector<ScenePiece> buildScene(const PlanarScene &scene, int maximumEdges);
