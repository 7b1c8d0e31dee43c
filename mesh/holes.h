// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class IntersectionNode;
class MeshBuilder;

//! The cells of a piece that have no face, by what kept the face from being made.
struct HoleCounts
{
    int total() const { return overLimit + dangling + unclosed; }

    int overLimit = 0; // more edges than the limit
    int dangling = 0;  // loose ends at its corners lead every walk astray
    int unclosed = 0;  // no walk comes back to its start in a left turn on the whole
};

//! Follows the left-turning cycles of a traced piece that have an edge of no face, and counts the
//! inner ones that gave none.
//! nodes: all nodes of the piece, by vertex number, neighbours in angular order.
//! Linear in the edges where nodes have a bounded number of neighbours.
HoleCounts countHoles(const QVector<IntersectionNode *> &nodes, const MeshBuilder &builder,
                      int maxEdges);
