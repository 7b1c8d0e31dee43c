// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/polygons.h>

#include <QVector>

namespace orvane {

class Mesh;

//! What the checks of one mesh share. The mesh must outlive it.
struct MeshShape
{
    explicit MeshShape(const Mesh &source);

    const Mesh &mesh;
    PolygonList polygons;         // corners as the mesh has them
    PolygonList boundaries;       // parallel to polygons: no corner twice in a row; two corners
                                  // where there are only two vertices; no vertex out of range
    QVector<MeshEdge> edges;      // of the boundaries
    QVector<int> edgesAt;         // by vertex
    QVector<int> boundaryEdgesAt; // by vertex
    double zeroLength = 0.0;      // scene units; a length up to this one counts as none
};

} // namespace orvane
