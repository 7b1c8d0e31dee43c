// SPDX-License-Identifier: MIT
#include "host/meshchecker/connectionfaults.h"

#include "host/meshchecker/meshshape.h"

#include <QVector>

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

// A corner of a polygon, by the vertices next to its own along the two sides.
struct Corner
{
    int previous;
    int next;
};

// The corners at each vertex, of polygons that have a side.
class CornersAtVertices
{
public:
    explicit CornersAtVertices(const MeshShape &shape)
        : m_boundaries(shape.boundaries),
          m_end(shape.edgesAt.size(), 0),
          m_corners(m_boundaries.corners.size())
    {
        int *end = m_end.data();
        forEachCorner([end](int vertex, Corner) { ++end[vertex]; });
        int start = 0;
        for (int &count : m_end) {
            start += count;
            count = start - count;
        }
        Corner *corners = m_corners.data();
        forEachCorner(
            [end, corners](int vertex, Corner corner) { corners[end[vertex]++] = corner; });
    }

    Corner *begin(int vertex)
    {
        return m_corners.data() + (vertex == 0 ? 0 : m_end.at(vertex - 1));
    }
    Corner *end(int vertex) { return m_corners.data() + m_end.at(vertex); }

private:
    template <typename Visit>
    void forEachCorner(Visit visit) const
    {
        for (int p = 0; p < m_boundaries.Count(); ++p) {
            const int *corner = m_boundaries.Corners(p);
            const int count = m_boundaries.CornerCount(p);
            for (int i = 0; i < count && count > 1; ++i)
                visit(corner[i],
                      {corner[i == 0 ? count - 1 : i - 1], corner[i + 1 == count ? 0 : i + 1]});
        }
    }

    const PolygonList &m_boundaries;
    QVector<int> m_end; // by vertex: in m_corners
    QVector<Corner> m_corners;
};

// Turns from corner to corner across the sides between them, from the first one on and then back
// from it, and moves those it meets to the front. Answers the end of those.
Corner *turnAround(Corner *begin, Corner *end)
{
    Corner *met = begin + 1;
    int next = begin->next;
    int previous = begin->previous;
    for (Corner *found = met; found != end; found = met) {
        while (found != end && found->previous != next && found->next != previous)
            ++found;
        if (found == end)
            break;
        (found->previous == next ? next : previous) =
            found->previous == next ? found->next : found->previous;
        std::swap(*met++, *found);
    }
    return met;
}

// Are the corners joined through the edges at their vertex, whichever way round their polygons?
bool areJoined(const Corner *begin, const Corner *end)
{
    struct Side
    {
        int vertex;
        int corner;
    };
    QVector<Side> sides;
    for (const Corner *corner = begin; corner != end; ++corner) {
        sides.append({corner->previous, int(corner - begin)});
        sides.append({corner->next, int(corner - begin)});
    }
    std::sort(sides.begin(), sides.end(),
              [](const Side &a, const Side &b) { return a.vertex < b.vertex; });
    QVector<int> parent(int(end - begin)); // by corner: one of the same fan, itself at the root
    std::iota(parent.begin(), parent.end(), 0);
    const auto root = [&parent](int corner) {
        while (parent[corner] != corner)
            corner = parent[corner] = parent[parent[corner]];
        return corner;
    };
    int fans = parent.size();
    for (int i = 1; i < sides.size(); ++i) {
        if (sides[i].vertex != sides[i - 1].vertex)
            continue;
        const int a = root(sides[i - 1].corner);
        const int b = root(sides[i].corner);
        parent[std::max(a, b)] = std::min(a, b);
        fans -= a != b;
    }
    return fans <= 1;
}

// Turning around tells nearly always and fast, but not where polygons face different ways.
bool areOneFan(Corner *begin, Corner *end)
{
    if (end - begin < 2)
        return true;
    return (end - begin <= MaximumValence && turnAround(begin, end) == end)
           || areJoined(begin, end);
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
    CornersAtVertices corners(shape);
    return faultyVertices(MeshChecker::VertexSplice, shape, [&corners](int v) {
        return !areOneFan(corners.begin(v), corners.end(v));
    });
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
