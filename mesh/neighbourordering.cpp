// SPDX-License-Identifier: MIT
#include "mesh/neighbourordering.h"

#include "graph/nodefetch.h"
#include "graph/nodemarks.h"

#include <QVarLengthArray>
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

using AngleRecords = QVarLengthArray<AngleRecord, 8>;

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

float angleAbout(const Vector &normal, const Vector &reference, const Vector &d)
{
    const float angle = std::atan2(Dot(normal, reference & d), Dot(d, reference));
    return angle < 0.0f ? angle + FullTurn : angle;
}

AngleRecords neighbourAngles(const IntersectionNode &node)
{
    const bool normalIsKnown = node.normal.LengthSquared() != 0.0f;
    const Vector normal = normalIsKnown ? node.normal : normalFromNeighbours(node);
    Vector direction = directionTo(*node.neighbours.first(), node);
    const Vector reference = Normalized(normal & direction);
    AngleRecords records;
    records.append({angleAbout(normal, reference, direction), 0});
    for (int i = 1; i < node.neighbourCount(); ++i) {
        direction = directionTo(*node.neighbours[i], node);
        records.append({angleAbout(normal, reference, direction), i});
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
void sortByAngle(AngleRecords &records)
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
    AngleRecords records = neighbourAngles(*this);
    sortByAngle(records);
    const auto unsorted = neighbours;
    for (int i = 0; i < records.size(); ++i)
        neighbours[i] = unsorted[records[i].index];
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
