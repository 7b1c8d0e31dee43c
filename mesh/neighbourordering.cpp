// SPDX-License-Identifier: MIT
#include "mesh/neighbourordering.h"

#include "graph/nodefetch.h"
#include "graph/nodemarks.h"

#include <QVarLengthArray>
#include <QVector>
#include <QtAlgorithms>

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const float FullTurn = 6.2831855f; // radians, 2 pi as a float

// Far above what the roundings of an angle and of its stand-in can be.
const float ClearGap = 1e-5f; // radians

// The direction of a neighbour in the plane about the normal.
struct Direction
{
    float y = 0.0f;
    float x = 0.0f;     // along the reference
    float order = 0.0f; // what they are sorted by
    int index = 0;      // into the neighbours as they stand
};

using Directions = QVarLengthArray<Direction, 8>;

// The sum of the corners' normals, each weighted by its angle. The corner between the last and
// the first neighbour is left out: results already made repeat only so.
Vector normalFromNeighbours(const IntersectionNode &node)
{
    Vector sum;
    for (int i = 0; i + 1 < node.neighbourCount(); ++i) {
        const Vector a = node.neighbours[i]->position() - node.position();
        const Vector b = node.neighbours[i + 1]->position() - node.position();
        const float angle = std::acos(Dot(b, a) / (a.Length() * b.Length()));
        sum += (a & b) * angle;
    }
    return sum.Normalize();
}

Vector directionTo(const IntersectionNode &neighbour, const IntersectionNode &node)
{
    return Normalized(neighbour.position() - node.position());
}

Direction directionAbout(const Vector &normal, const Vector &reference, const Vector &d, int index)
{
    return {Dot(normal, reference & d), Dot(d, reference), 0.0f, index};
}

Directions neighbourDirections(const IntersectionNode &node)
{
    const bool normalIsKnown = node.normal.LengthSquared() != 0.0f;
    const Vector normal = normalIsKnown ? node.normal : normalFromNeighbours(node);
    const Vector first = directionTo(*node.neighbours.first(), node);
    const Vector reference = Normalized(normal & first);
    Directions directions;
    directions.append(directionAbout(normal, reference, first, 0));
    for (int i = 1; i < node.neighbourCount(); ++i)
        directions.append(
            directionAbout(normal, reference, directionTo(*node.neighbours[i], node), i));
    return directions;
}

bool isBefore(const Direction &a, const Direction &b)
{
    return a.order < b.order;
}

// Grows with the angle, from 0 to 4, never faster than it, and is much cheaper. No number for a
// direction without one.
float angleStandIn(const Direction &d)
{
    const float t = d.y / (std::abs(d.x) + std::abs(d.y));
    if (d.x < 0.0f)
        return 2.0f - t;
    return d.y < 0.0f ? 4.0f + t : t;
}

// Sorts by the stand-in. False where two directions are too close for it to tell how their angles,
// with all their roundings, would be sorted.
bool sortClearDirections(Directions &directions)
{
    for (Direction &d : directions) {
        d.order = angleStandIn(d);
        if (!(d.order >= 0.0f))
            return false;
    }
    std::sort(directions.begin(), directions.end(), isBefore);
    for (int i = 1; i < directions.size(); ++i) {
        if (directions[i].order - directions[i - 1].order < ClearGap)
            return false;
    }
    return true;
}

// qSort is deprecated, but the order in which it leaves equal angles is part of the results that
// recorded commands repeat to.
#if defined(__GNUC__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif
void sortByAngle(Directions &directions)
{
    for (Direction &d : directions) {
        const float angle = std::atan2(d.y, d.x);
        d.order = angle < 0.0f ? angle + FullTurn : angle;
    }
    qSort(directions.begin(), directions.end(), isBefore);
}
#if defined(__GNUC__)
#    pragma GCC diagnostic pop
#endif

} // namespace

void IntersectionNode::sortNeighboursByAngle()
{
    if (neighbourCount() < 2)
        return;
    const Directions unsorted = neighbourDirections(*this);
    Directions sorted = unsorted;
    if (!sortClearDirections(sorted)) {
        sorted = unsorted;
        sortByAngle(sorted);
    }
    const auto old = neighbours;
    for (int i = 0; i < sorted.size(); ++i)
        neighbours[i] = old[sorted[i].index];
}

// Each node is ordered by itself, so any way round will do. Breadth first, the nodes to come are
// known well ahead.
void orderNeighbours(IntersectionNode *start)
{
    if (!start)
        return;
    NodeMarks reached;
    QVector<IntersectionNode *> queue{start};
    reached.set(start);
    for (int i = 0; i < queue.size(); ++i) {
        fetchNeighbours(queue[qMin(i + FetchAhead, queue.size() - 1)]);
        queue[i]->sortNeighboursByAngle();
        for (IntersectionNode *neighbour : qAsConst(queue[i]->neighbours)) {
            if (!neighbour || reached.has(neighbour))
                continue;
            reached.set(neighbour);
            queue.append(neighbour);
        }
    }
}
