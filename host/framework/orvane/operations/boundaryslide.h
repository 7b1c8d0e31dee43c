// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/polygons.h>
#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {

//! The boundary of a mesh as it was at first, and its vertices as beads on it: they slide along
//! it, never off it and never past one another. Its corners stay: vertices where the boundary
//! turns by more than 50 degrees, and where not just two open edges meet.
class BoundarySlide
{
public:
    //! positions: by vertex.
    BoundarySlide(const QVector<MeshEdge> &edges, const QVector<Vector> &positions);

    //! Does an open edge end at the vertex?
    bool IsOnBoundary(int vertex) const { return m_openEdgesAt[vertex] > 0; }
    //! Moves each bead by this fraction of the way to the middle between its two neighbours,
    //! measured along the boundary. positions: receives the beads' places; others are not touched.
    void Step(double fraction, QVector<Vector> &positions);

private:
    // From corner to corner, or once round where there is no corner.
    struct Chain
    {
        QVector<int> vertices;   // of a loop the first once more at the end
        QVector<Vector> places;  // parallel to vertices: the boundary itself
        QVector<double> lengths; // along the boundary up to each of the places, scene units
        QVector<double> beads;   // where each vertex is now, in the same measure
        bool loop = false;
    };

    bool isCorner(int vertex, const QVector<Vector> &positions) const;
    int otherEnd(int edge, int vertex) const;
    void follow(int vertex, int edge, const QVector<Vector> &positions);
    static Vector placeAt(const Chain &chain, double length);

    QVector<MeshEdge> m_open;   // the open edges
    QVector<int> m_openEdgesAt; // by vertex: how many
    QVector<int> m_firstOpen;   // by vertex, and the end: where its own start in m_openOf
    QVector<int> m_openOf;      // numbers of open edges
    QVector<bool> m_corner;     // by vertex
    QVector<bool> m_followed;   // by open edge
    QVector<Chain> m_chains;
};

} // namespace orvane
