// SPDX-License-Identifier: MIT
#include "tests/host/meshchecker/plainchecker.h"

#include <set>

using orvane::Vector;

namespace {

using Places = std::map<int, QStringList>;

std::set<int> vertexSet(const QVector<int> &polygon)
{
    return {polygon.begin(), polygon.end()};
}

} // namespace

PlainChecker::PlainChecker(const QVector<Vector> &positions, const QVector<QVector<int>> &polygons)
    : m_positions(positions), m_polygons(polygons)
{
    int face = 0;
    for (int p = 0; p < polygons.size(); ++p) {
        m_firstFaces.append(face);
        face += polygons[p].size() - 2;
        m_boundaries.append(withoutRepetitions(polygons[p]));
        const QVector<Edge> sides = sidesOf(p);
        for (const Edge &side : sides)
            ++m_sides[side];
    }
}

QVector<int> PlainChecker::withoutRepetitions(QVector<int> polygon)
{
    for (int i = 0; i < polygon.size() && polygon.size() > 1;) {
        if (polygon[i] == polygon[(i + 1) % polygon.size()])
            polygon.remove(i);
        else
            ++i;
    }
    const std::set<int> vertices = vertexSet(polygon);
    if (vertices.size() == 2)
        return {*vertices.begin(), *vertices.rbegin()};
    return polygon;
}

QVector<PlainChecker::Edge> PlainChecker::sidesOf(int polygon) const
{
    QVector<Edge> sides;
    const QVector<int> &corners = m_boundaries[polygon];
    for (int i = 0; i < corners.size() && corners.size() > 1; ++i)
        sides.append(std::minmax(corners[i], corners[(i + 1) % corners.size()]));
    return sides;
}

QVector<PlainChecker::Edge> PlainChecker::edgesAt(int vertex, bool onlyBoundary) const
{
    QVector<Edge> edges;
    for (const auto &[edge, sides] : m_sides) {
        if ((edge.first == vertex || edge.second == vertex) && (!onlyBoundary || sides == 1))
            edges.append(edge);
    }
    return edges;
}

int PlainChecker::fansAt(int vertex) const
{
    // Each corner at the vertex is the set of its two neighbours; sets that meet are put together.
    QVector<std::set<int>> fans;
    for (const QVector<int> &corners : m_boundaries) {
        for (int i = 0; i < corners.size() && corners.size() > 1; ++i) {
            if (corners[i] != vertex)
                continue;
            std::set<int> fan{corners[(i + 1) % corners.size()],
                              corners[(i + corners.size() - 1) % corners.size()]};
            for (int f = fans.size() - 1; f >= 0; --f) {
                const bool meets = std::any_of(fan.begin(), fan.end(),
                                               [&](int v) { return fans[f].count(v) > 0; });
                if (meets) {
                    fan.insert(fans[f].begin(), fans[f].end());
                    fans.remove(f);
                    f = fans.size(); // what is larger now may meet one that was passed
                }
            }
            fans.append(fan);
        }
    }
    return fans.size();
}

bool PlainChecker::isDegenerate(int polygon) const
{
    Vector area;
    const QVector<int> &corners = m_polygons[polygon];
    for (int i = 0; i < corners.size(); ++i)
        area += m_positions[corners[i]] & m_positions[corners[(i + 1) % corners.size()]];
    return area == Vector();
}

Places PlainChecker::faults() const
{
    Places found;
    judgeVertices(found);
    judgeEdges(found);
    judgePolygons(found);
    return found;
}

void PlainChecker::judgeVertices(Places &faults) const
{
    for (int v = 0; v < m_positions.size(); ++v) {
        const QString place = QStringLiteral("vertex %1").arg(v);
        const int edges = edgesAt(v, false).size();
        const int boundary = edgesAt(v, true).size();
        if (edges > 16)
            faults[0x00001] += place;
        if (boundary > 2)
            faults[0x00002] += place;
        if (edges == 2 && boundary == 0)
            faults[0x00004] += place;
        if (fansAt(v) > 1)
            faults[0x00008] += place;
    }
}

void PlainChecker::judgeEdges(Places &faults) const
{
    std::multiset<Edge> zeroLength;
    for (const auto &[edge, sides] : m_sides) {
        if (sides > 2)
            faults[0x10000] += QStringLiteral("edge %1-%2").arg(edge.first).arg(edge.second);
        if (m_positions[edge.first] == m_positions[edge.second])
            zeroLength.insert(edge);
    }
    for (const QVector<int> &corners : m_polygons) {
        for (int i = 0; i < corners.size(); ++i) {
            if (corners[i] == corners[(i + 1) % corners.size()])
                zeroLength.insert({corners[i], corners[i]});
        }
    }
    for (const Edge &edge : zeroLength)
        faults[0x00100] += QStringLiteral("edge %1-%2").arg(edge.first).arg(edge.second);
}

void PlainChecker::judgePolygons(Places &faults) const
{
    for (int p = 0; p < m_polygons.size(); ++p) {
        const QString place =
            QStringLiteral("polygon %1 (mesh face %2)").arg(p).arg(m_firstFaces[p]);
        const std::set<int> vertices = vertexSet(m_polygons[p]);
        bool hasTwin = false;
        for (int q = 0; q < m_polygons.size(); ++q)
            hasTwin = hasTwin || (q != p && vertexSet(m_polygons[q]) == vertices);
        if (hasTwin)
            faults[0x00200] += place;
        if (vertices.size() == 2)
            faults[0x20000] += place;
        if (m_boundaries[p].size() > 16)
            faults[0x40000] += place;
        if (vertices.size() != 2 && isDegenerate(p))
            faults[0x80000] += place;
    }
}
