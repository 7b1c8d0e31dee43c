// SPDX-License-Identifier: MIT
#include "tests/mesh/recursivetracing.h"

#include "graph/intersectionnode.h"
#include "tests/support/graphs.h"

using orvane::Vector;

RecursiveTracing::RecursiveTracing(const TestGraph &graph, int maxEdges) : m_maxEdges(maxEdges)
{
    const QList<IntersectionNode *> nodes = graph.nodes();
    for (const IntersectionNode *node : nodes) {
        QVector<int> links;
        for (IntersectionNode *neighbour : node->neighbours)
            links.append(nodes.indexOf(neighbour));
        neighbours.append(links);
        incoming.append(node->incomingUsed.toVector());
        outgoing.append(node->outgoingUsed.toVector());
        m_positions.append(node->position());
        m_normals.append(node->normal);
    }
}

QVector<int> RecursiveTracing::trace(int node, int edge)
{
    if (outgoing[node][edge])
        return {};
    QVector<int> face{node};
    outgoing[node][edge] = true;
    if (walk(neighbours[node][edge], node, node, 1, face))
        return face;
    outgoing[node][edge] = false;
    return {};
}

bool RecursiveTracing::walk(int v, int u, int s, int depth, QVector<int> &face)
{
    const int count = v < 0 ? 0 : neighbours[v].size();
    if (count < 2)
        return false;
    const int k = neighbours[v].indexOf(u);
    if (k < 0 || incoming[v][k])
        return false;
    incoming[v][k] = true;
    if (v == s) {
        const bool closed = isInner(face);
        incoming[v][k] = closed;
        return closed;
    }
    if (depth >= m_maxEdges) {
        incoming[v][k] = false;
        return false;
    }
    face.append(v);
    int j = k;
    do {
        j = j == 0 ? count - 1 : j - 1;
    } while (j != k && outgoing[v][j]);
    if (j == k) {
        ++m_stuckWalks;
        return false;
    }
    outgoing[v][j] = true;
    if (walk(neighbours[v][j], v, s, depth + 1, face))
        return true;
    incoming[v][k] = false;
    outgoing[v][j] = false;
    return false;
}

bool RecursiveTracing::isInner(const QVector<int> &face) const
{
    Vector normals;
    Vector corners;
    for (int i = 0; i < face.size(); ++i) {
        const Vector p = m_positions[face[i]];
        const Vector previous = m_positions[i == 0 ? face.last() : face[i - 1]];
        const Vector next = m_positions[i == face.size() - 1 ? face.first() : face[i + 1]];
        normals = normals + m_normals[face[i]];
        corners = corners + ((previous - p) & (next - p));
    }
    normals.Normalize();
    corners.Normalize();
    return corners.x * normals.x + corners.y * normals.y + corners.z * normals.z < 0.0f;
}
