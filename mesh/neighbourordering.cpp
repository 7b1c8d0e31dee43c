// SPDX-License-Identifier: MIT
#include "mesh/neighbourordering.h"

#include "graph/graphwalk.h"
#include "graph/intersectionnode.h"

#include <QVector>
#include <QtAlgorithms>

#include <cmath>

using orvane::Vector;

namespace {

const float FullTurn = 6.2831855f; // radians, 2 pi as a float

struct AngleRecord
{
    float angle = 0.0f; // radians
    int index = 0;      // into the neighbours as they stand
};

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

QVector<AngleRecord> neighbourAngles(const IntersectionNode &node)
{
    const bool normalIsKnown = node.normal.LengthSquared() != 0.0f;
    const Vector normal = normalIsKnown ? node.normal : normalFromNeighbours(node);
    const Vector reference = Normalized(normal & directionTo(*node.neighbours.first(), node));
    QVector<AngleRecord> records;
    records.reserve(node.neighbourCount());
    for (int i = 0; i < node.neighbourCount(); ++i) {
        const Vector d = directionTo(*node.neighbours[i], node);
        const float y = Dot(normal, reference & d);
        const float x = Dot(d, reference);
        float angle = std::atan2(y, x);
        if (angle < 0.0f)
            angle += FullTurn;
        records.append({angle, i});
    }
    return records;
}

bool isBefore(const AngleRecord &a, const AngleRecord &b)
{
    return a.angle < b.angle;
}

// qSort is deprecated, but the order in which it leaves equal angles is part of the results that
// recorded commands repeat to.
#if defined(__GNUC__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif
void sortByAngle(QVector<AngleRecord> &records)
{
    qSort(records.begin(), records.end(), isBefore);
}
#if defined(__GNUC__)
#    pragma GCC diagnostic pop
#endif

} // namespace

void IntersectionNode::sortNeighboursByAngle()
{
    if (neighbourCount() < 2)
        return;
    QVector<AngleRecord> records = neighbourAngles(*this);
    sortByAngle(records);
    QList<IntersectionNode *> sorted;
    sorted.reserve(records.size());
    for (const AngleRecord &record : qAsConst(records))
        sorted.append(neighbours[record.index]);
    neighbours = sorted;
}

void orderNeighbours(IntersectionNode *start)
{
    walkGraph(start, 0, [](IntersectionNode *node) { node->sortNeighboursByAngle(); });
}
