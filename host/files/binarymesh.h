// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/polygonmesh.h"

#include <QByteArray>

namespace orvane {

//! One binary PLY, little-endian, of all meshes joined: polygons whole, normals and texture
//! coordinates where every mesh has them. Vertices are repeated along texture seams.
QByteArray plyBytesOf(const QVector<PolygonMesh> &meshes);

//! One binary STL of all meshes joined: a polygon becomes the triangles of the fan about its first
//! corner.
QByteArray stlBytesOf(const QVector<PolygonMesh> &meshes);

} // namespace orvane
