// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QPair>
#include <QSet>
#include <QVector>

//! Straight links between places of the plane; z does not count.
struct PlanarGraph
{
    QVector<orvane::Vector> positions;
    QVector<QPair<int, int>> links; // each once, the lower number first
};

//! A polygon as vertex numbers of the graph, its inside to the left of every ring.
struct Shell
{
    QVector<QVector<int>> rings; // the outer one first, then the holes
};

//! What GEOS makes of the links of one graph.
struct Polygonization
{
    QVector<Shell> shells;
    QSet<int> dangleVertices;  // on links that lead nowhere
    QSet<int> cutEdgeVertices; // on links with the same face on both sides
    int invalidRings = 0;
};

//! Do links meet anywhere but at their ends?
bool linksCross(const PlanarGraph &graph);

//! GEOS's polygonizer over links that meet at nodes only.
Polygonization polygonize(const PlanarGraph &graph);
