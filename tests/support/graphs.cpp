// SPDX-License-Identifier: MIT
#include "tests/support/graphs.h"

#include "graph/intersectionnode.h"

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

QVector<int> numbers(int first, int count)
{
    QVector<int> result;
    for (int i = 0; i < count; ++i)
        result.append(first + i);
    return result;
}

int numberOf(const TestGraph &graph, const IntersectionNode *node)
{
    for (int i = 0; i < graph.count(); ++i) {
        if (graph[i] == node)
            return i;
    }
    return -1;
}

// incoming: the marked edges run from the neighbour to the node.
QVector<QPair<int, int>> marked(const TestGraph &graph, bool incoming)
{
    QVector<QPair<int, int>> edges;
    for (int i = 0; i < graph.count(); ++i) {
        const QList<bool> &marks = incoming ? graph[i]->incomingUsed : graph[i]->outgoingUsed;
        for (int k = 0; k < marks.size(); ++k) {
            if (!marks[k])
                continue;
            const int other = numberOf(graph, graph[i]->neighbour(k));
            edges.append(incoming ? qMakePair(other, i) : qMakePair(i, other));
        }
    }
    std::sort(edges.begin(), edges.end());
    return edges;
}

} // namespace

TestGraph::TestGraph() = default;
TestGraph::TestGraph(TestGraph &&other) noexcept = default;
TestGraph::~TestGraph() = default;

QList<IntersectionNode *> TestGraph::nodes() const
{
    QList<IntersectionNode *> result;
    for (const std::unique_ptr<IntersectionNode> &node : m_nodes)
        result.append(node.get());
    return result;
}

int TestGraph::add(const Vector &position, const Vector &normal)
{
    m_nodes.push_back(std::make_unique<IntersectionNode>());
    m_nodes.back()->position() = position;
    m_nodes.back()->normal = normal;
    return count() - 1;
}

void TestGraph::link(int a, int b)
{
    (*this)[a]->addNeighbour((*this)[b]);
}

void TestGraph::unlink(int a, int b)
{
    (*this)[a]->removeNeighbourAt((*this)[a]->indexOfNeighbour((*this)[b]));
}

void TestGraph::linkRing(const QVector<int> &ring)
{
    for (int i = 0; i < ring.size(); ++i)
        link(ring[i], ring[(i + 1) % ring.size()]);
}

int TestGraph::addLooseEnd(int at, const Vector &position)
{
    const int end = add(position, (*this)[at]->normal);
    link(at, end);
    return end;
}

TestGraph polygonGraph(const QVector<Vector> &corners)
{
    TestGraph graph;
    for (const Vector &corner : corners)
        graph.add(corner);
    graph.linkRing(numbers(0, corners.size()));
    return graph;
}

TestGraph squareGraph()
{
    return polygonGraph({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}});
}

TestGraph ringGraph(int corners, float radius)
{
    QVector<Vector> positions;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * Pi * i / corners;
        positions.append(Vector(float(std::cos(angle)), float(std::sin(angle)), 0.0f) * radius);
    }
    return polygonGraph(positions);
}

TestGraph notchedHexagon()
{
    return polygonGraph({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}});
}

TestGraph starGraph(int leaves)
{
    TestGraph graph;
    graph.add({0, 0, 0});
    for (int i = 0; i < leaves; ++i) {
        const double angle = 2.0 * Pi * i / leaves;
        graph.addLooseEnd(0, {float(std::cos(angle)), float(std::sin(angle)), 0.0f});
    }
    return graph;
}

TestGraph gridGraph(int columns, int rows)
{
    TestGraph graph;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            const int node = graph.add({float(column), float(row), 0.0f});
            if (column > 0)
                graph.link(node - 1, node);
            if (row > 0)
                graph.link(node - columns - 1, node);
        }
    }
    return graph;
}

TestGraph annulusGraph(int bridges)
{
    TestGraph graph = polygonGraph({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}});
    for (const Vector &corner :
         {Vector(1, 1, 0), Vector(3, 1, 0), Vector(3, 3, 0), Vector(1, 3, 0)})
        graph.add(corner);
    graph.linkRing(numbers(4, 4));
    for (int i = 0; i < bridges; ++i)
        graph.link(i, 4 + i);
    return graph;
}

TestGraph cubeGraph()
{
    TestGraph graph;
    for (int i = 0; i < 8; ++i) {
        const Vector corner(i & 1 ? 1.0f : -1.0f, i & 2 ? 1.0f : -1.0f, i & 4 ? 1.0f : -1.0f);
        graph.add(corner, orvane::Normalized(corner));
        for (int axis : {1, 2, 4}) {
            if (i & axis)
                graph.link(i ^ axis, i);
        }
    }
    return graph;
}

QVector<QPair<int, int>> markedOutgoing(const TestGraph &graph)
{
    return marked(graph, false);
}

QVector<QPair<int, int>> markedIncoming(const TestGraph &graph)
{
    return marked(graph, true);
}
