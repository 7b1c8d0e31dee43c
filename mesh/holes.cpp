// SPDX-License-Identifier: MIT
#include "mesh/holes.h"

#include "graph/nodefetch.h"
#include "mesh/meshbuilder.h"

using orvane::Vector;

namespace {

// The directed edges of a piece, each visited at most once, by the cycle that it belongs to.
class CellWalk
{
public:
    explicit CellWalk(const QVector<IntersectionNode *> &nodes) : m_nodes(nodes)
    {
        m_firstEdge.reserve(nodes.size() + 1);
        m_firstEdge.append(0);
        int edges = 0;
        for (int i = 0; i < nodes.size(); ++i) {
            fetchNode(nodes[qMin(i + FetchAhead, nodes.size() - 1)]);
            edges += nodes[i]->neighbourCount();
            m_firstEdge.append(edges);
        }
        m_visited.fill(false, m_firstEdge.last());
    }

    bool isVisited(int vertex, int edge) const { return m_visited[m_firstEdge[vertex] + edge]; }

    // The vertices of the cycle that starts with an edge. hasFace: does an edge of it belong to a
    // face?
    QVector<int> follow(int vertex, int edge, bool &hasFace)
    {
        QVector<int> cycle;
        hasFace = false;
        while (!isVisited(vertex, edge)) {
            m_visited[m_firstEdge[vertex] + edge] = true;
            cycle.append(vertex);
            const IntersectionNode *node = m_nodes[vertex];
            hasFace = hasFace || node->outgoingUsed[edge];
            const IntersectionNode *next = node->neighbours[edge];
            const int arrivedBy = next->indexOfNeighbour(node);
            vertex = next->vertexIndex;
            edge = arrivedBy == 0 ? next->neighbourCount() - 1 : arrivedBy - 1;
        }
        return cycle;
    }

private:
    const QVector<IntersectionNode *> &m_nodes;
    QVector<int> m_firstEdge; // by vertex, and the end
    QVector<bool> m_visited;  // by directed edge
};

// The cycle without its loose ends, where it runs out along an edge and straight back.
QVector<int> withoutLooseEnds(const QVector<int> &cycle)
{
    QVector<int> ring;
    for (int vertex : cycle) {
        ring.append(vertex);
        while (ring.size() >= 3 && ring[ring.size() - 1] == ring[ring.size() - 3])
            ring.resize(ring.size() - 2);
    }
    int first = 0;
    int last = ring.size() - 1;
    // What is left may still run out and back across the seam where the cycle was cut open.
    while (last - first >= 2) {
        if (ring[first + 1] == ring[last])
            ++first, --last;
        else if (ring[first] == ring[last - 1])
            last -= 2;
        else
            break;
    }
    return ring.mid(first, last - first + 1);
}

// Does the ring run counter-clockwise about its normals?  Newell's area vector.
bool isCell(const QVector<int> &ring, const MeshBuilder &builder)
{
    Vector area;
    Vector normal;
    const Vector origin = builder.positions[ring.first()];
    for (int i = 0; i < ring.size(); ++i) {
        const int next = ring[i + 1 == ring.size() ? 0 : i + 1];
        area += (builder.positions[ring[i]] - origin) & (builder.positions[next] - origin);
        normal += builder.normals[ring[i]];
    }
    return Dot(area, normal) > 0.0f;
}

} // namespace

HoleCounts countHoles(const QVector<IntersectionNode *> &nodes, const MeshBuilder &builder,
                      int maxEdges)
{
    HoleCounts holes;
    CellWalk walk(nodes);
    for (int vertex = 0; vertex < nodes.size(); ++vertex) {
        fetchNode(nodes[qMin(vertex + FetchAhead, nodes.size() - 1)]);
        for (int edge = 0; edge < nodes[vertex]->neighbourCount(); ++edge) {
            // A cycle of edges of faces is no hole; most are, and need not be followed.
            if (nodes[vertex]->outgoingUsed[edge] || walk.isVisited(vertex, edge))
                continue;
            bool hasFace = false;
            const QVector<int> cycle = walk.follow(vertex, edge, hasFace);
            const QVector<int> ring = withoutLooseEnds(cycle);
            if (hasFace || ring.size() < 3 || !isCell(ring, builder))
                continue;
            if (ring.size() > maxEdges)
                ++holes.overLimit;
            else if (ring.size() < cycle.size())
                ++holes.dangling;
            else
                ++holes.unclosed;
        }
    }
    return holes;
}
