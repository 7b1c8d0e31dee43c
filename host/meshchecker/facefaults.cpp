// SPDX-License-Identifier: MIT
#include "host/meshchecker/facefaults.h"

#include "host/meshchecker/meshshape.h"

#include <orvane/geometry/mesh.h>

#include <QPair>

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

    double squaredLength() const { return x * x + y * y + z * z; }
    double length() const { return std::sqrt(squaredLength()); }
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
    double squaredReach = 0.0;
    for (int i = 1; i < count; ++i) {
        const Offset next = offsetBetween(shape.mesh, corner[0], corner[i]);
        doubledArea.x += previous.y * next.z - previous.z * next.y;
        doubledArea.y += previous.z * next.x - previous.x * next.z;
        doubledArea.z += previous.x * next.y - previous.y * next.x;
        squaredReach = std::max(squaredReach, next.squaredLength());
        previous = next;
    }
    const double reach = std::sqrt(squaredReach);
    return std::isfinite(reach) && doubledArea.length() * 0.5 <= reach * shape.zeroLength;
}

// Finds polygons with the same set of vertices. Such polygons share their lowest vertex, the lowest
// of the others and the highest, so only those that do are compared.
class LaminaSearch
{
public:
    explicit LaminaSearch(const MeshShape &shape)
        : m_boundaries(shape.boundaries), m_isLamina(m_boundaries.Count(), false)
    {
        gather(shape.edgesAt.size());
        for (int v = 0; v + 1 < m_start.size(); ++v)
            search(m_gathered.data() + m_start.at(v), m_gathered.data() + m_start.at(v + 1));
    }

    bool isLamina(int polygon) const { return m_isLamina[polygon]; }

private:
    struct Candidate
    {
        int second;
        int highest;
        int polygon;
    };

    template <typename Visit>
    void forEachPolygon(Visit visit) const
    {
        for (int p = 0; p < m_boundaries.Count(); ++p) {
            const int *begin = m_boundaries.Corners(p);
            const int *end = begin + m_boundaries.CornerCount(p);
            if (begin != end)
                visit(begin, end, p);
        }
    }
    void gather(int vertexCount);
    void search(Candidate *begin, Candidate *end);
    void compare(const Candidate *begin, const Candidate *end);
    QVector<int> vertexSet(int polygon) const;

    const PolygonList &m_boundaries;
    QVector<int> m_start;          // by lowest vertex, and the end
    QVector<Candidate> m_gathered; // by lowest vertex
    QVector<bool> m_isLamina;
};

void LaminaSearch::gather(int vertexCount)
{
    m_start.fill(0, vertexCount + 1);
    int *count = m_start.data() + 1;
    forEachPolygon(
        [count](const int *begin, const int *end, int) { ++count[*std::min_element(begin, end)]; });
    std::partial_sum(m_start.begin(), m_start.end(), m_start.begin());
    m_gathered.resize(m_start.last());
    QVector<int> next = m_start;
    int *place = next.data();
    Candidate *gathered = m_gathered.data();
    forEachPolygon([place, gathered](const int *begin, const int *end, int polygon) {
        const int lowest = *std::min_element(begin, end);
        const int highest = *std::max_element(begin, end);
        int second = highest;
        for (const int *corner = begin; corner != end; ++corner)
            second = *corner == lowest ? second : std::min(second, *corner);
        gathered[place[lowest]++] = {second, highest, polygon};
    });
}

void LaminaSearch::search(Candidate *begin, Candidate *end)
{
    std::sort(begin, end, [](const Candidate &a, const Candidate &b) {
        return a.highest != b.highest ? a.highest < b.highest : a.second < b.second;
    });
    while (begin != end) {
        const Candidate *first = begin;
        while (begin != end && begin->highest == first->highest && begin->second == first->second)
            ++begin;
        if (begin - first > 1)
            compare(first, begin);
    }
}

void LaminaSearch::compare(const Candidate *begin, const Candidate *end)
{
    QVector<QPair<QVector<int>, int>> sets;
    for (const Candidate *candidate = begin; candidate != end; ++candidate)
        sets.append({vertexSet(candidate->polygon), candidate->polygon});
    std::sort(sets.begin(), sets.end());
    for (int i = 1; i < sets.size(); ++i) {
        if (sets[i - 1].first == sets[i].first)
            m_isLamina[sets[i - 1].second] = m_isLamina[sets[i].second] = true;
    }
}

QVector<int> LaminaSearch::vertexSet(int polygon) const
{
    const int *corners = m_boundaries.Corners(polygon);
    QVector<int> set(corners, corners + m_boundaries.CornerCount(polygon));
    std::sort(set.begin(), set.end());
    set.erase(std::unique(set.begin(), set.end()), set.end());
    return set;
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
