// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"

#include <atomic>

quint64 IntersectionNode::takeMarks(quint64 count)
{
    static std::atomic<quint64> next{1}; // a new node bears 0
    return next.fetch_add(count);
}

IntersectionNode::~IntersectionNode() = default;

void IntersectionNode::setSample(const NodeSample &sample)
{
    curvePoint = sample.curvePoint;
    normal = sample.normal;
    vertexIndex = sample.vertexIndex;
}

bool IntersectionNode::addNeighbour(IntersectionNode *node)
{
    if (!node || node == this)
        return false;
    if (!hasNeighbour(node)) {
        neighbours.append(node);
        outgoingUsed.append(false);
        incomingUsed.append(false);
    }
    if (!node->hasNeighbour(this))
        node->addNeighbour(this);
    return true;
}

bool IntersectionNode::removeNeighbourAt(int i)
{
    if (i < 0 || i >= neighbours.size())
        return false;
    IntersectionNode *removed = neighbours.takeAt(i);
    outgoingUsed.removeAt(i);
    incomingUsed.removeAt(i);
    const int back = removed ? removed->indexOfNeighbour(this) : -1;
    if (back >= 0)
        removed->removeNeighbourAt(back);
    return true;
}

void IntersectionNode::unlinkAll()
{
    for (int i = neighbours.size() - 1; i >= 0; --i) {
        if (neighbours[i])
            removeNeighbourAt(i);
    }
}

bool IntersectionNode::merge(IntersectionNode *other)
{
    if (!other)
        return false;
    for (int i = 0; i < other->neighbourCount(); ++i) {
        if (other->neighbours[i])
            addNeighbour(other->neighbours[i]);
    }
    for (orvane::OrvaneCurve *curve : qAsConst(other->curves))
        addCurve(curve);
    return true;
}

int IntersectionNode::indexOfCurve(const orvane::OrvaneCurve *curve) const
{
    return curve ? curves.indexOf(const_cast<orvane::OrvaneCurve *>(curve)) : -1;
}

bool IntersectionNode::addCurve(orvane::OrvaneCurve *curve)
{
    if (!curve || hasCurve(curve))
        return false;
    curves.append(curve);
    return true;
}

bool IntersectionNode::removeCurveAt(int i)
{
    if (i < 0 || i >= curves.size())
        return false;
    curves.removeAt(i);
    return true;
}

bool IntersectionNode::removeCurve(orvane::OrvaneCurve *curve)
{
    return removeCurveAt(indexOfCurve(curve));
}
