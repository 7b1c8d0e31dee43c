// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/polygonmesh.h"

#include <QByteArray>

namespace orvane {

//! The vertices, texture coordinates and faces of an OBJ text, numbered as in the file. The text
//! is read here and not by assimp, which forgets the vertex numbers, takes coordinates that are
//! no finite numbers, and knows no lines.
//! False, and in *error what is wrong in which line, when there is anything to object to.
bool readObjMesh(const QByteArray &text, PolygonMesh *mesh, QString *error);
//! The same, from so many parts of the text, several at a time.
bool readObjMesh(const QByteArray &text, int parts, PolygonMesh *mesh, QString *error);

//! Each mesh as an object of its own.
QByteArray objTextOf(const QVector<PolygonMesh> &meshes);

} // namespace orvane
