// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/planarity.h"

#include "tests/operation/agreement/polygonizer.h"

#include <algorithm>
#include <cmath>

namespace {

const double FullTurn = 6.283185307179586; // radians
// Some roundings of an angle kept as a float. Closer ones have no order.
const double SameDirection = 2e-6; // radians

double direction(const orvane::Vector &from, const orvane::Vector &to)
{
    return std::atan2(double(to.y) - double(from.y), double(to.x) - double(from.x));
}

bool areDistinct(QVector<double> directions)
{
    if (directions.isEmpty())
        return true;
    std::sort(directions.begin(), directions.end());
    directions.append(directions.first() + FullTurn);
    return std::adjacent_find(directions.cbegin(), directions.cend(),
                              [](double a, double b) { return b - a < SameDirection; })
           == directions.cend();
}

bool nodesCoincide(const PlanarGraph &graph)
{
    QSet<QPair<float, float>> places;
    for (const orvane::Vector &position : graph.positions)
        places.insert({position.x, position.y});
    return places.size() < graph.positions.size();
}

bool linksOverlap(const PlanarGraph &graph)
{
    QVector<QVector<double>> directions(graph.positions.size());
    for (const QPair<int, int> &link : graph.links) {
        const orvane::Vector &a = graph.positions[link.first];
        const orvane::Vector &b = graph.positions[link.second];
        directions[link.first].append(direction(a, b));
        directions[link.second].append(direction(b, a));
    }
    return !std::all_of(directions.cbegin(), directions.cend(), areDistinct);
}

} // namespace

Flaw flawOf(const PlanarGraph &graph)
{
    if (nodesCoincide(graph))
        return Flaw::NodesCoincide;
    if (linksCross(graph))
        return Flaw::LinksCross;
    return linksOverlap(graph) ? Flaw::LinksOverlap : Flaw::None;
}
