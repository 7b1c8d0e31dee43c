// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class IntersectionNode;

namespace orvane {
class Mesh;
}

//! For each polygon of a piece's mesh the number of the cell it came from, counted from 0: what
//! was split into triangles when the mesh was built is one cell again. Polygons of one cell share
//! a side along which the graph has no link. seed: any node of the piece, numbered as the mesh's
//! vertices are.
QVector<int> cellsOfPolygons(const orvane::Mesh &mesh, IntersectionNode *seed);
