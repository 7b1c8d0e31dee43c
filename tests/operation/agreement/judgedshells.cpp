// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/judgedshells.h"

#include "tests/operation/agreement/cutvertices.h"
#include "tests/operation/agreement/ring.h"

#include <QHash>

namespace {

// Sides of shells that have no other shell beyond them, by where they begin.
QMultiHash<int, int> outerSides(const QVector<Shell> &shells)
{
    QSet<QPair<int, int>> sides;
    for (const Shell &shell : shells)
        forEachSide(shell.rings.first(), [&sides](int a, int b) { sides.insert({a, b}); });
    QMultiHash<int, int> outer;
    for (const QPair<int, int> &side : qAsConst(sides)) {
        if (!sides.contains({side.second, side.first}))
            outer.insert(side.first, side.second);
    }
    return outer;
}

QVector<QVector<int>> outlinesOf(const QVector<Shell> &shells)
{
    QMultiHash<int, int> next = outerSides(shells);
    QVector<QVector<int>> outlines;
    while (!next.isEmpty()) {
        QVector<int> path{next.begin().key()};
        while (next.contains(path.last())) {
            const int vertex = next.take(path.last());
            // Where boundaries touch in a vertex, each becomes a ring of its own.
            const int met = path.indexOf(vertex);
            if (met >= 0) {
                outlines.append(path.mid(met));
                path.resize(met);
            }
            path.append(vertex);
        }
    }
    return outlines;
}

LeftOut causeFor(const Shell &shell, const Polygonization &geos, const QSet<int> &cuts,
                 const PlanarGraph &graph)
{
    const QVector<int> &ring = shell.rings.first();
    const QSet<int> vertices(ring.cbegin(), ring.cend());
    if (shell.rings.size() > 1)
        return LeftOut::HasHoles;
    if (vertices.size() < ring.size())
        return LeftOut::RepeatedVertex;
    if (vertices.intersects(geos.dangleVertices))
        return LeftOut::Dangle;
    if (vertices.intersects(geos.cutEdgeVertices))
        return LeftOut::CutEdge;
    if (vertices.intersects(cuts))
        return LeftOut::CutVertex;
    return turnsOver(ring, graph.positions) ? LeftOut::TurnsOver : LeftOut::No;
}

} // namespace

JudgedShells judgedShells(const PlanarGraph &graph)
{
    const Polygonization geos = polygonize(graph);
    const QSet<int> cuts = cutVertices(graph.positions.size(), graph.links);
    const QSet<int> unclear = cuts + geos.dangleVertices + geos.cutEdgeVertices;
    JudgedShells piece;
    piece.graph = graph;
    piece.shells = geos.shells;
    piece.invalidRings = geos.invalidRings;
    piece.outlines = outlinesOf(geos.shells);
    for (const Shell &shell : geos.shells)
        piece.leftOut.append(causeFor(shell, geos, cuts, graph));
    for (int vertex = 0; vertex < graph.positions.size(); ++vertex)
        piece.unclearVertex.append(unclear.contains(vertex));
    return piece;
}
