// SPDX-License-Identifier: MIT
#include "host/meshchecker/connectionfaults.h"

#include "host/meshchecker/meshshape.h"

#include <algorithm>
#include <numeric>

namespace orvane {

namespace {

const int MaximumValence = 16;      // edges at a vertex
const int MaximumBoundaryEdges = 2; // at a vertex
const int MaximumEdgeSides = 2;     // polygon sides along an edge

template <typename IsFaulty>
MeshFault faultyVertices(int bit, const MeshShape &shape, IsFaulty isFaulty)
{
    MeshFault fault;
    fault.bit = bit;
    for (int v = 0; v < shape.edgesAt.size(); ++v) {
        if (isFaulty(v))
            fault.vertices.append(v);
    }
    return fault;
}

// Counts the fans of corners at each vertex. Corners start as fans of their own; walking along
// every polygon side joins the corner at each of its ends with the one met there before.
class FanCount
{
public:
    explicit FanCount(const MeshShape &shape)
        : m_corners(shape.boundaries.corners),
          m_edges(shape.edges),
          m_fans(shape.edgesAt.size(), 0),
          m_firstEdge(shape.edgesAt.size() + 1, 0),
          m_cornerMet(2 * shape.edges.size(), -1),
          m_parent(m_corners.size())
    {
        for (const MeshEdge &edge : m_edges)
            ++m_firstEdge[edge.a + 1];
        std::partial_sum(m_firstEdge.begin(), m_firstEdge.end(), m_firstEdge.begin());
        std::iota(m_parent.begin(), m_parent.end(), 0);
        walk(shape.boundaries);
    }

    const QVector<int> &fans() const { return m_fans; }

private:
    void walk(const PolygonList &boundaries);
    void walkSide(int from, int to);
    void meet(int edgeEnd, int corner);
    bool join(int corner, int other);
    int root(int corner);
    int edgeBetween(int a, int b) const;

    const QVector<int> &m_corners;
    const QVector<MeshEdge> &m_edges;
    QVector<int> m_fans;      // by vertex
    QVector<int> m_firstEdge; // by lower vertex, and the end
    QVector<int> m_cornerMet; // by edge end: twice the edge, plus 1 for the upper vertex; or -1
    QVector<int> m_parent;    // by corner: one of the same fan, itself at the root
};

void FanCount::walk(const PolygonList &boundaries)
{
    for (int p = 0; p < boundaries.Count(); ++p) {
        const int first = boundaries.firstCorner[p];
        const int end = boundaries.firstCorner[p + 1];
        if (end - first < 2)
            continue; // no side, so nothing around its vertex
        for (int corner = first; corner < end; ++corner)
            ++m_fans[m_corners[corner]];
        for (int corner = first; corner < end; ++corner)
            walkSide(corner, corner + 1 == end ? first : corner + 1);
    }
}

void FanCount::walkSide(int from, int to)
{
    const int v = m_corners[from];
    const int w = m_corners[to];
    const int edge = edgeBetween(std::min(v, w), std::max(v, w));
    meet(2 * edge + (v > w ? 1 : 0), from);
    meet(2 * edge + (w > v ? 1 : 0), to);
}

void FanCount::meet(int edgeEnd, int corner)
{
    int &met = m_cornerMet[edgeEnd];
    if (met >= 0 && join(met, corner))
        --m_fans[m_corners[corner]];
    met = corner;
}

bool FanCount::join(int corner, int other)
{
    const int a = root(corner);
    const int b = root(other);
    m_parent[std::max(a, b)] = std::min(a, b);
    return a != b;
}

int FanCount::root(int corner)
{
    while (m_parent[corner] != corner) {
        m_parent[corner] = m_parent[m_parent[corner]];
        corner = m_parent[corner];
    }
    return corner;
}

int FanCount::edgeBetween(int a, int b) const
{
    const auto begin = m_edges.cbegin();
    const auto found =
        std::lower_bound(begin + m_firstEdge[a], begin + m_firstEdge[a + 1], b,
                         [](const MeshEdge &edge, int upper) { return edge.b < upper; });
    return int(found - begin);
}

} // namespace

MeshFault highValence(const MeshShape &shape)
{
    return faultyVertices(MeshChecker::HighValence, shape,
                          [&shape](int v) { return shape.edgesAt[v] > MaximumValence; });
}

MeshFault boundaryValence(const MeshShape &shape)
{
    return faultyVertices(MeshChecker::BoundaryValence, shape, [&shape](int v) {
        return shape.boundaryEdgesAt[v] > MaximumBoundaryEdges;
    });
}

MeshFault interiorValenceTwo(const MeshShape &shape)
{
    return faultyVertices(MeshChecker::InteriorValenceTwo, shape, [&shape](int v) {
        return shape.edgesAt[v] == 2 && shape.boundaryEdgesAt[v] == 0;
    });
}

MeshFault vertexSplices(const MeshShape &shape)
{
    const FanCount count(shape);
    return faultyVertices(MeshChecker::VertexSplice, shape,
                          [&count](int v) { return count.fans()[v] > 1; });
}

MeshFault nonManifoldEdges(const MeshShape &shape)
{
    MeshFault fault;
    fault.bit = MeshChecker::NonManifoldEdge;
    for (const MeshEdge &edge : shape.edges) {
        if (edge.polygons > MaximumEdgeSides)
            fault.edges.append(edge);
    }
    return fault;
}

} // namespace orvane
