// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

#include <vector>

class IntersectionNode;

//! One piece of the graph as plain numbers: walks over it read a few megabytes where the nodes
//! themselves would be ten times as much. The directed edge from a vertex to its neighbour number i
//! is the edge begin(vertex) + i.
struct PieceGraph
{
    int begin(int vertex) const { return firstEdges[size_t(vertex)]; }
    int end(int vertex) const { return firstEdges[size_t(vertex) + 1]; }
    int edgeCount(int vertex) const { return end(vertex) - begin(vertex); }
    int target(int edge) const { return targets[size_t(edge)]; }
    //! The edge just below one of the same vertex, round and round: a left turn for who came by the
    //! one, neighbours being in counter-clockwise order.
    int below(int vertex, int edge) const
    {
        return edge == begin(vertex) ? end(vertex) - 1 : edge - 1;
    }
    //! Takes a node over as the next vertex, but for its links.
    void add(IntersectionNode *node);

    QVector<IntersectionNode *> nodes; // by vertex number
    QVector<orvane::Vector> positions; // by vertex number, world space
    QVector<orvane::Vector> normals;   // parallel to positions; zero = not known
    std::vector<int> firstEdges{0};    // by vertex, and the end
    std::vector<int> targets;          // by edge: vertex number; -1 for a null neighbour
    bool hasMarks = false;             // is any set in the nodes' flag lists?
};

//! The piece that can be reached from start; its nodes get their vertex numbers, depth first: the
//! last of a node's neighbours that has no number comes next. Null gives an empty piece.
PieceGraph numberedPiece(IntersectionNode *start);
