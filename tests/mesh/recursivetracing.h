// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

class TestGraph;

//! Face tracing as it is defined, a walk that calls itself for each next node, over plain numbers
//! instead of nodes: what the real one is compared with. Small face limits only.
class RecursiveTracing
{
public:
    //! Takes over links and flags as they stand; a node's number is its vertex.
    RecursiveTracing(const TestGraph &graph, int maxEdges);

    //! Tries the face that begins with an edge. Answers it, or nothing.
    QVector<int> trace(int node, int edge);

    //! How often a walk got stuck at a node whose other edges were all taken.
    int stuckWalks() const { return m_stuckWalks; }

    QVector<QVector<int>> neighbours; // by node
    QVector<QVector<bool>> incoming;
    QVector<QVector<bool>> outgoing;

private:
    bool walk(int v, int u, int s, int depth, QVector<int> &face);
    bool isInner(const QVector<int> &face) const;

    QVector<orvane::Vector> m_positions;
    QVector<orvane::Vector> m_normals;
    int m_maxEdges;
    int m_stuckWalks = 0;
};
