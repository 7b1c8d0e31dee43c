// SPDX-License-Identifier: MIT
#pragma once

#include "host/meshchecker/meshchecker.h"

#include <QStringList>
#include <QVector>

namespace orvane {

//! What people ask about a mesh. Polygons, edges and boundary are those that MeshChecker sees;
//! lengths and the area are in world space, in scene units.
struct MESHCHECKER_EXPORT MeshFigures
{
    //! The text of each kind; empty without faults.
    QStringList FaultTexts() const;

    int vertices = 0;
    int unusedVertices = 0; // of no polygon; they count among the vertices
    int polygons = 0;
    QVector<int> polygonsByCorners; // by number of corners, no corner counted twice in a row
    int edges = 0;
    int openEdges = 0;
    int boundaryLoops = 0; // openings that touch in a vertex are one
    int parts = 0;         // of polygons joined by vertices
    double area = 0.0;     // of the triangles, quads cut from their first corner to their third
    double shortestEdge = 0.0;
    double meanEdge = 0.0;
    double longestEdge = 0.0;
    //! Only counted where every polygon is a quad: inner vertices of other than four edges, and
    //! those of the boundary of more than three.
    int irregularVertices = 0;
    QVector<MeshFault> faults;
};

//! All zero for null. Edges and triangles at places that are not finite have no say in lengths and
//! area. No Update of the mesh is needed; as fast as MeshChecker.
MESHCHECKER_EXPORT MeshFigures figuresOf(const Mesh *mesh);

} // namespace orvane
