// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/facesbyshell.h"

#include "tests/operation/agreement/ring.h"

#include <cmath>
#include <numeric>

namespace {

// Scene units, some roundings of a coordinate: which way a thinner triangle turns is chance.
const double SliverHeight = 2e-5;
const int Outside = -1;

} // namespace

FacesByShell::FacesByShell(const PlanarGraph &graph, const QVector<Shell> &shells,
                           const QVector<QVector<int>> &polygons)
    : m_polygons(polygons), m_joinedTo(polygons.size()), m_area(shells.size(), 0.0)
{
    findSides(graph, shells);
    joinParts();
    QVector<int> solid;
    QHash<int, QSet<int>> shellsOfFace;
    for (int i = 0; i < polygons.size(); ++i) {
        if (isSliverPart(polygons[i], graph))
            continue;
        solid.append(i);
        forEachSide(polygons[i], [&](int a, int b) {
            if (isLink(a, b))
                shellsOfFace[faceOf(i)].insert(m_shellLeftOf.value({a, b}));
        });
    }
    for (int i : qAsConst(solid)) {
        const QSet<int> candidates = shellsOfFace.value(faceOf(i));
        if (candidates.size() == 1 && !candidates.contains(Outside))
            m_area[*candidates.cbegin()] += ringArea(polygons[i], graph.positions);
        else
            m_strays.append(i);
    }
}

void FacesByShell::findSides(const PlanarGraph &graph, const QVector<Shell> &shells)
{
    for (const QPair<int, int> &link : graph.links) {
        m_shellLeftOf[{link.first, link.second}] = Outside;
        m_shellLeftOf[{link.second, link.first}] = Outside;
    }
    for (int shell = 0; shell < shells.size(); ++shell) {
        for (const QVector<int> &ring : shells[shell].rings)
            forEachSide(ring, [&](int a, int b) { m_shellLeftOf[{a, b}] = shell; });
    }
}

// Where a corner lies within rounding of a straight line, the faces on both sides may cut it off
// along the same line, and the cut tells no more which parts belong together.
void FacesByShell::joinParts()
{
    QHash<QPair<int, int>, QVector<int>> polygonsAt; // by cut between parts
    for (int i = 0; i < m_polygons.size(); ++i) {
        forEachSide(m_polygons[i], [&](int a, int b) {
            if (!isLink(a, b))
                polygonsAt[{qMin(a, b), qMax(a, b)}].append(i);
        });
    }
    std::iota(m_joinedTo.begin(), m_joinedTo.end(), 0);
    for (const QVector<int> &parts : qAsConst(polygonsAt)) {
        if (parts.size() == 2)
            m_joinedTo[faceOf(parts[0])] = faceOf(parts[1]);
    }
}

int FacesByShell::faceOf(int polygon) const
{
    while (m_joinedTo[polygon] != polygon)
        polygon = m_joinedTo[polygon];
    return polygon;
}

bool FacesByShell::isSliverPart(const QVector<int> &polygon, const PlanarGraph &graph) const
{
    bool isPart = false;
    forEachSide(polygon, [&](int a, int b) { isPart = isPart || !isLink(a, b); });
    const double doubleArea = 2.0 * std::fabs(ringArea(polygon, graph.positions));
    return isPart && doubleArea < SliverHeight * longestSide(polygon, graph.positions);
}
