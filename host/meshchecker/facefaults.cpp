// SPDX-License-Identifier: MIT
#include "host/meshchecker/facefaults.h"

#include "host/meshchecker/meshshape.h"

#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvane {

namespace {

const int MaximumSides = 16; // of a face

// Double throughout: squares and products of small float differences must not vanish.
struct Offset
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    double length() const { return std::sqrt(x * x + y * y + z * z); }
};

Offset offsetBetween(const Mesh &mesh, int from, int to)
{
    const Vector a = mesh.VertexPosition(from);
    const Vector b = mesh.VertexPosition(to);
    return {double(b.x) - a.x, double(b.y) - a.y, double(b.z) - a.z};
}

// Vector area, summed over a fan about the first corner: a flat or folded triangle of the fan
// does no harm as long as the whole has an area, and so a normal.
bool isDegenerate(const MeshShape &shape, int polygon)
{
    const int *corner = shape.boundaries.Corners(polygon);
    const int count = shape.boundaries.CornerCount(polygon);
    Offset doubledArea;
    Offset previous;
    double reach = 0.0;
    for (int i = 1; i < count; ++i) {
        const Offset next = offsetBetween(shape.mesh, corner[0], corner[i]);
        doubledArea.x += previous.y * next.z - previous.z * next.y;
        doubledArea.y += previous.z * next.x - previous.x * next.z;
        doubledArea.z += previous.x * next.y - previous.y * next.x;
        reach = std::max(reach, next.length());
        previous = next;
    }
    return std::isfinite(reach) && doubledArea.length() * 0.5 <= reach * shape.zeroLength;
}

// Finds polygons with the same set of vertices. Such polygons share their lowest vertex, so
// only those of one lowest vertex need sorting.
class LaminaSearch
{
public:
    explicit LaminaSearch(const MeshShape &shape)
        : m_sets(shape.boundaries), m_setEnd(m_sets.Count()), m_isLamina(m_sets.Count(), false)
    {
        makeSets();
        gather(shape.edgesAt.size());
        for (int v = 0; v + 1 < m_start.size(); ++v)
            compare(m_gathered.begin() + m_start[v], m_gathered.begin() + m_start[v + 1]);
    }

    bool isLamina(int polygon) const { return m_isLamina[polygon]; }

private:
    void makeSets();
    void gather(int vertexCount);
    void compare(QVector<int>::iterator begin, QVector<int>::iterator end);
    bool isBefore(int p, int q) const;

    const int *setBegin(int p) const { return m_sets.Corners(p); }
    const int *setEnd(int p) const { return m_sets.corners.constData() + m_setEnd[p]; }

    PolygonList m_sets;      // the vertices of each polygon once, ascending, up to m_setEnd
    QVector<int> m_setEnd;   // by polygon
    QVector<int> m_start;    // by lowest vertex, and the end
    QVector<int> m_gathered; // polygons by lowest vertex
    QVector<bool> m_isLamina;
};

void LaminaSearch::makeSets()
{
    int *corners = m_sets.corners.data();
    for (int p = 0; p < m_sets.Count(); ++p) {
        int *begin = corners + m_sets.firstCorner[p];
        int *end = corners + m_sets.firstCorner[p + 1];
        std::sort(begin, end);
        m_setEnd[p] = int(std::unique(begin, end) - corners);
    }
}

void LaminaSearch::gather(int vertexCount)
{
    m_start.fill(0, vertexCount + 1);
    m_gathered.resize(m_sets.Count());
    for (int p = 0; p < m_sets.Count(); ++p) {
        if (setBegin(p) != setEnd(p))
            ++m_start[*setBegin(p) + 1];
    }
    std::partial_sum(m_start.begin(), m_start.end(), m_start.begin());
    QVector<int> next = m_start;
    for (int p = 0; p < m_sets.Count(); ++p) {
        if (setBegin(p) != setEnd(p))
            m_gathered[next[*setBegin(p)]++] = p;
    }
}

void LaminaSearch::compare(QVector<int>::iterator begin, QVector<int>::iterator end)
{
    std::sort(begin, end, [this](int p, int q) { return isBefore(p, q); });
    for (auto p = begin; p != end && p + 1 != end; ++p) {
        if (!isBefore(*p, *(p + 1))) {
            m_isLamina[*p] = true;
            m_isLamina[*(p + 1)] = true;
        }
    }
}

bool LaminaSearch::isBefore(int p, int q) const
{
    return std::lexicographical_compare(setBegin(p), setEnd(p), setBegin(q), setEnd(q));
}

} // namespace

MeshFault twoSidedFaces(const MeshShape &shape)
{
    return faultyPolygons(MeshChecker::TwoSidedFace, shape.boundaries,
                          [&shape](int p) { return shape.boundaries.CornerCount(p) == 2; });
}

MeshFault tooManySides(const MeshShape &shape)
{
    return faultyPolygons(MeshChecker::TooManySides, shape.boundaries, [&shape](int p) {
        return shape.boundaries.CornerCount(p) > MaximumSides;
    });
}

MeshFault zeroLengthEdges(const MeshShape &shape)
{
    MeshFault fault;
    fault.bit = MeshChecker::ZeroLengthEdge;
    for (const MeshEdge &edge : shape.edges) {
        if (offsetBetween(shape.mesh, edge.a, edge.b).length() <= shape.zeroLength)
            fault.edges.append(edge);
    }
    for (int p = 0; p < shape.polygons.Count(); ++p) {
        const int *corner = shape.polygons.Corners(p);
        const int count = shape.polygons.CornerCount(p);
        for (int i = 0; i < count; ++i) {
            if (corner[i] == corner[i + 1 == count ? 0 : i + 1])
                fault.edges.append({corner[i], corner[i], 1});
        }
    }
    std::sort(fault.edges.begin(), fault.edges.end(), [](const MeshEdge &e, const MeshEdge &f) {
        return e.a != f.a ? e.a < f.a : e.b < f.b;
    });
    return fault;
}

MeshFault laminaFaces(const MeshShape &shape)
{
    const LaminaSearch search(shape);
    return faultyPolygons(MeshChecker::LaminaFaces, shape.boundaries,
                          [&search](int p) { return search.isLamina(p); });
}

MeshFault degenerateFaces(const MeshShape &shape)
{
    return faultyPolygons(MeshChecker::DegenerateFace, shape.boundaries, [&shape](int p) {
        return shape.boundaries.CornerCount(p) != 2 && isDegenerate(shape, p);
    });
}

} // namespace orvane
