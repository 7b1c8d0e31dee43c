// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/polygonmesh.h"

namespace orvane {

//! All polygons of a file that assimp reads, where the file's own transformations put them.
//! Corners are joined by the file's vertices where assimp keeps them, else by equal position.
//! False, and what is wrong with it in *error, when it cannot be used.
bool readAssimpMesh(const QString &path, PolygonMesh *mesh, QString *error);

} // namespace orvane
