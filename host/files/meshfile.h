// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/export.h"

#include <QString>
#include <QVector>

namespace orvane {

class Geometry;

//! Reads all parts of a mesh file as one mesh: a new geometry named after the file, of one level,
//! owned by the caller. Vertices keep the file's order; those of no face are left out. Quads stay
//! quads when every face is one. Null, and one sentence in *error, when the file cannot be used.
//! Faces of fewer than three different corners are left out and counted in *leftOut, if given.
ORVANE_FILES_EXPORT Geometry *readMesh(const QString &path, QString *error, int *leftOut = nullptr);

//! Can writeMeshes write a file of that name? False, and one sentence in *error, when not.
ORVANE_FILES_EXPORT bool isWritableMeshFormat(const QString &path, QString *error);

//! Writes the current levels, in world space, to a file of the kind its extension says: obj, ply,
//! stl, glb or gltf (of one piece, its buffer inside). OBJ and PLY keep polygons, the others take
//! triangles; OBJ and glTF keep the meshes apart, the others join them. Vertices of no face are
//! left out. A file of that name is replaced only once the new one is whole.
//! False, and one sentence in *error, when it could not be written.
ORVANE_FILES_EXPORT bool writeMeshes(const QVector<const Geometry *> &geometries,
                                     const QString &path, QString *error);

} // namespace orvane
