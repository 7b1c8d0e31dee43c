// SPDX-License-Identifier: MIT
#pragma once

#include "graph/export.h"
#include "graph/shortlist.h"

#include <orvane/geometry/curvepoint.h>

namespace orvane {
class OrvaneCurve;
}

//! What a node is made from: a point, its normal, a vertex number.
struct NodeSample
{
    orvane::CurvePoint curvePoint;
    orvane::Vector normal;
    int vertexIndex = -1;
};

//! A vertex of the crossing graph: a place where curves cross. Nodes that follow each other along
//! a curve are neighbours. Links are symmetric: B is a neighbour of A exactly when A is one of B;
//! no node is its own neighbour and none is listed twice. All operations are total.
class QUILLMESH_EXPORT IntersectionNode
{
public:
    IntersectionNode() = default;
    explicit IntersectionNode(const NodeSample &sample) { setSample(sample); }
    //! Unlinks nothing: a node that others still list must be unlinked before.
    virtual ~IntersectionNode();

    void setSample(const NodeSample &sample);
    //! World space.
    const orvane::Vector &position() const { return curvePoint.position; }
    orvane::Vector &position() { return curvePoint.position; }

    int neighbourCount() const { return neighbours.size(); }
    //! Null when out of range.
    IntersectionNode *neighbour(int i) const { return neighbours.value(i); }
    //! -1 when absent.
    int indexOfNeighbour(const IntersectionNode *node) const
    {
        return neighbours.indexOf(const_cast<IntersectionNode *>(node));
    }
    bool hasNeighbour(const IntersectionNode *node) const { return indexOfNeighbour(node) >= 0; }
    //! Links both ways. False for null and for this node; true for a link that stood already.
    bool addNeighbour(IntersectionNode *node);
    //! Unlinks both ways. False when out of range.
    bool removeNeighbourAt(int i);
    //! Afterwards no other node refers to this one.
    void unlinkAll();
    //! Takes over the links and curves of another node, which stays as it is. False for null.
    bool merge(IntersectionNode *other);
    //! Orders neighbours counter-clockwise about the normal, angles in [0, 2 pi) radians.
    //! Fewer than two: unchanged. A zero normal is replaced, for this sort only, by one made from
    //! the neighbours. Flag lists keep their order: all false by now.
    //! Defined in mesh/neighbourordering.cpp.
    void sortNeighboursByAngle();

    int curveCount() const { return curves.size(); }
    //! Null when out of range.
    orvane::OrvaneCurve *curve(int i) const { return curves.value(i); }
    //! -1 when absent or null.
    int indexOfCurve(const orvane::OrvaneCurve *curve) const;
    bool hasCurve(const orvane::OrvaneCurve *curve) const { return indexOfCurve(curve) >= 0; }
    //! False for null and for a curve that is here already.
    bool addCurve(orvane::OrvaneCurve *curve);
    bool removeCurveAt(int i);
    bool removeCurve(orvane::OrvaneCurve *curve);

private:
    friend class NodeMarks;

    //! The first of so many numbers in a row that no node bears; later calls answer higher ones.
    static quint64 takeMarks(quint64 count);

    // What a walk over the graph reads of every node stands together, here at the front.
    quint64 m_mark = 0; // see graph/nodemarks.h

public:
    ShortList<IntersectionNode *, 4> neighbours; // in order of linking until sorted by angle
    orvane::CurvePoint curvePoint;
    orvane::Vector normal;                      // of the surface; zero = not known
    int vertexIndex = -1;                       // in the output mesh; -1 until tracing numbers it
    ShortList<orvane::OrvaneCurve *, 2> curves; // each once
    // By neighbour: the edge from there to here has been arrived along; the edge from here to there
    // belongs to a face or to the walk in progress.
    ShortList<bool, 8> incomingUsed;
    ShortList<bool, 8> outgoingUsed;
};
