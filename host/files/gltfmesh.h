// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/polygonmesh.h"

#include <QByteArray>

namespace orvane {

//! glTF 2.0 with each mesh as a node of its own; a polygon becomes the triangles of the fan about
//! its first corner. Written here and not by assimp, which joins vertices that lie close together.
//! As one binary file (.glb).
QByteArray glbBytesOf(const QVector<PolygonMesh> &meshes);

//! The same as text (.gltf), its buffer inside as base64, so that the file is of one piece.
QByteArray gltfTextOf(const QVector<PolygonMesh> &meshes);

} // namespace orvane
