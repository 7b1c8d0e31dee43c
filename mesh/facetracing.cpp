// SPDX-License-Identifier: MIT
#include "mesh/facetracing.h"

#include "mesh/directededges.h"
#include "mesh/meshbuilder.h"

#include <algorithm>

using orvane::Vector;

namespace {

const int None = DirectedEdges::None;

// The first free edge below the one arrived by, round and round; None when all are taken.
int freeDeparture(const DirectedEdges &edges, int vertex, int arrivedBy)
{
    const PieceGraph &graph = edges.graph();
    for (int edge = graph.below(vertex, arrivedBy); edge != arrivedBy;
         edge = graph.below(vertex, edge)) {
        if (!edges.used.has(edges.placeOf(edge)))
            return edge;
    }
    return None;
}

} // namespace

FaceTracing::FaceTracing(DirectedEdges &edges, MeshBuilder &builder, int maxEdges)
    : m_edges(edges), m_builder(builder), m_maxEdges(std::max(maxEdges, 1))
{}

void FaceTracing::traceFace(int edge)
{
    const QVector<int> &face = walkFace(edge);
    if (face.size() > 2)
        m_builder.addPolygon(face);
}

const QVector<int> &FaceTracing::walkFace(int edge)
{
    const int place = m_edges.placeOf(edge);
    if (m_edges.used.has(place) || !walkFrom(place))
        m_face.resize(0);
    return m_face;
}

// A walk goes from stop to stop. In between, all it has to look for is its start and the limit.
bool FaceTracing::walkFrom(int place)
{
    const int *vertices = m_edges.vertices();
    const int start = vertices[place];
    int depth = 1; // edges, with the one at place
    m_walk.clear();
    while (true) {
        const int stop = m_edges.nextStop(place);
        const int beyond = m_maxEdges - depth + 1; // so many edges further on it is one too many
        const int *end = vertices + place + std::min(stop - place, beyond);
        const int *back = std::find(vertices + place + 1, end + 1, start);
        if (back <= end) {
            const int last = int(back - vertices) - 1;
            pass({place, last, last});
            return closeFace() || giveUp();
        }
        if (stop - place >= beyond)
            return giveUp();
        depth += stop - place;
        pass({place, stop, None});
        const int mark = m_edges.isBarred(stop) ? None : m_edges.arrivalMark(stop);
        if (mark == None || m_edges.arrived.has(mark))
            return giveUp();
        m_edges.arrived.set(mark);
        m_walk.back().arrivalMark = mark;
        const int vertex = vertices[stop + 1];
        if (vertex == start)
            return closeFace() || giveUp();
        if (depth == m_maxEdges)
            return giveUp();
        const int departure = freeDeparture(m_edges, vertex, m_edges.arrival(stop));
        if (departure == None) {
            m_walk.back().arrivalMark = None; // left set on purpose: a later one must fail at once
            return giveUp();
        }
        place = m_edges.placeOf(departure);
        ++depth;
    }
}

void FaceTracing::pass(const Stretch &stretch)
{
    m_walk.push_back(stretch);
    m_edges.used.setRange(stretch.first, stretch.last + 1);
    m_edges.arrived.setRange(stretch.first, stretch.last);
    if (stretch.arrivalMark != None)
        m_edges.arrived.set(stretch.arrivalMark);
}

bool FaceTracing::closeFace()
{
    int count = 0;
    for (const Stretch &stretch : m_walk)
        count += stretch.last + 1 - stretch.first;
    m_face.resize(count);
    int *corner = m_face.data();
    for (const Stretch &stretch : m_walk)
        corner = std::copy(m_edges.vertices() + stretch.first,
                           m_edges.vertices() + stretch.last + 1, corner);
    return isInnerFace(m_face, m_builder);
}

bool FaceTracing::giveUp()
{
    for (const Stretch &stretch : m_walk) {
        m_edges.used.clearRange(stretch.first, stretch.last + 1);
        m_edges.arrived.clearRange(stretch.first, stretch.last);
        if (stretch.arrivalMark != None)
            m_edges.arrived.clear(stretch.arrivalMark);
    }
    return false;
}

bool isInnerFace(const QVector<int> &face, const MeshBuilder &builder)
{
    if (face.isEmpty())
        return false;
    const Vector *positions = builder.positions.constData();
    const Vector *normals = builder.normals.constData();
    Vector normalSum;
    Vector turnSum;
    Vector previous = positions[face.last()];
    Vector p = positions[face.first()];
    for (int i = 0; i < face.size(); ++i) {
        const Vector next = positions[face[i + 1 == face.size() ? 0 : i + 1]];
        normalSum += normals[face[i]];
        turnSum += (previous - p) & (next - p);
        previous = p;
        p = next;
    }
    return Dot(turnSum.Normalize(), normalSum.Normalize()) < 0.0f;
}
