// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct PlanarScene;

//! Writes the scene's strokes as a curve file and its sheet as a mesh beside it, both named after
//! the path without an ending. Answers the command line that builds the scene anew; empty when a
//! file could not be written.
QString saveScene(const PlanarScene &scene, const QString &path, int maximumEdges);
