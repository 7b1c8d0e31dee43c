// SPDX-License-Identifier: MIT
#include "mesh/facetracing.h"

#include "graph/intersectionnode.h"
#include "mesh/meshbuilder.h"

#include <QVarLengthArray>

using orvane::Vector;

namespace {

const int ExpectedCorners = 5; // count
const int None = -1;

// One node passed on a walk, with the flags that the walk set there.
struct Passage
{
    IntersectionNode *node;
    int arrivedBy;  // place in incomingUsed
    int departedBy; // place in outgoingUsed
};

using Path = QVarLengthArray<Passage, 16>;

// The edge by which a walk may arrive, or None.
int freeArrival(const IntersectionNode *node, const IntersectionNode *previous)
{
    if (!node || node->neighbourCount() < 2)
        return None;
    const int edge = node->indexOfNeighbour(previous);
    return edge < 0 || node->incomingUsed[edge] ? None : edge;
}

// The first free edge below the one arrived by, round and round; None when all are taken.
int freeDeparture(const IntersectionNode &node, int arrivedBy)
{
    const int count = node.neighbourCount();
    for (int step = 1; step < count; ++step) {
        const int edge = arrivedBy - step;
        const int wrapped = edge < 0 ? edge + count : edge;
        if (!node.outgoingUsed[wrapped])
            return wrapped;
    }
    return None;
}

bool giveUp(const Path &path)
{
    for (const Passage &passage : path) {
        passage.node->incomingUsed[passage.arrivedBy] = false;
        passage.node->outgoingUsed[passage.departedBy] = false;
    }
    return false;
}

} // namespace

void traceFace(IntersectionNode *node, int edge, MeshBuilder &builder, int maxEdges)
{
    if (node->outgoingUsed[edge])
        return;
    QVector<int> face;
    face.reserve(ExpectedCorners);
    face.append(node->vertexIndex);
    node->outgoingUsed[edge] = true;
    if (!walkFace(node->neighbours[edge], node, node, 1, maxEdges, face, builder))
        node->outgoingUsed[edge] = false;
    else if (face.size() > 2)
        builder.addPolygon(face);
}

// A walk calls itself for each next node in effect; the path is kept here instead of on the
// stack, so that a limit of a million edges is as safe as one of five.
bool walkFace(IntersectionNode *arrived, IntersectionNode *previous, IntersectionNode *start,
              int depth, int maxEdges, QVector<int> &face, const MeshBuilder &builder)
{
    Path path;
    while (true) {
        const int arrivedBy = freeArrival(arrived, previous);
        if (arrivedBy == None)
            return giveUp(path);
        arrived->incomingUsed[arrivedBy] = true;
        if (arrived == start && isInnerFace(face, builder))
            return true;
        if (arrived == start || depth >= maxEdges) {
            arrived->incomingUsed[arrivedBy] = false;
            return giveUp(path);
        }
        face.append(arrived->vertexIndex);
        const int departedBy = freeDeparture(*arrived, arrivedBy);
        // The arrival is left set on purpose: a later one along this edge must fail at once.
        if (departedBy == None)
            return giveUp(path);
        arrived->outgoingUsed[departedBy] = true;
        path.append({arrived, arrivedBy, departedBy});
        previous = arrived;
        arrived = arrived->neighbours[departedBy];
        ++depth;
    }
}

bool isInnerFace(const QVector<int> &face, const MeshBuilder &builder)
{
    const int count = face.size();
    Vector normalSum;
    for (int vertex : face)
        normalSum += builder.normals[vertex];
    Vector turnSum;
    for (int i = 0; i < count; ++i) {
        const Vector p = builder.positions[face[i]];
        const Vector previous = builder.positions[face[i == 0 ? count - 1 : i - 1]];
        const Vector next = builder.positions[face[i + 1 == count ? 0 : i + 1]];
        turnSum += (previous - p) & (next - p);
    }
    return Dot(turnSum.Normalize(), normalSum.Normalize()) < 0.0f;
}
