// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QList>
#include <QPair>
#include <QVector>

#include <memory>
#include <vector>

class IntersectionNode;

//! A small crossing graph and the owner of its nodes. Nodes keep their numbers; normals are +z
//! unless others are given; nothing is sorted or traced yet.
class TestGraph
{
public:
    TestGraph();
    TestGraph(TestGraph &&other) noexcept;
    ~TestGraph();

    int count() const { return int(m_nodes.size()); }
    IntersectionNode *operator[](int i) const { return m_nodes[size_t(i)].get(); }
    QList<IntersectionNode *> nodes() const;

    //! Answers the number of the new node.
    int add(const orvane::Vector &position, const orvane::Vector &normal = {0, 0, 1});
    void link(int a, int b);
    void unlink(int a, int b);
    //! Links the nodes in turn, and the last one to the first.
    void linkRing(const QVector<int> &ring);
    //! A new node with one neighbour. Answers its number.
    int addLooseEnd(int at, const orvane::Vector &position);

private:
    std::vector<std::unique_ptr<IntersectionNode>> m_nodes;
};

//! The nodes of numbers 0 to n - 1 at the corners of one polygon, linked all round.
TestGraph polygonGraph(const QVector<orvane::Vector> &corners);
//! (0, 0), (1, 0), (1, 1), (0, 1).
TestGraph squareGraph();
//! A regular polygon about the origin, counter-clockwise.
TestGraph ringGraph(int corners, float radius = 1.0f);
//! A hexagon with its corner 3 pushed in: an L of three unit squares.
TestGraph notchedHexagon();
//! Node 0 at the origin, joined to the others on the unit circle.
TestGraph starGraph(int leaves);
//! Unit squares; node (column, row) has the number row * (columns + 1) + column.
TestGraph gridGraph(int columns, int rows);
//! A square of side 4 with a square of side 2 inside, joined corner to corner by so many bridges
//! (at most 4). Outer nodes 0 to 3, inner ones 4 to 7, each ring counter-clockwise.
TestGraph annulusGraph(int bridges);
//! The edges of a cube about the origin, normals outwards.
TestGraph cubeGraph();

//! Directed edges, as pairs of node numbers, whose mark is set; ascending.
QVector<QPair<int, int>> markedOutgoing(const TestGraph &graph);
QVector<QPair<int, int>> markedIncoming(const TestGraph &graph);
