// SPDX-License-Identifier: MIT
#include "mesh/directededges.h"

#include "graph/nodefetch.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

const int LongList = 32; // neighbours: more are not looked through one by one

} // namespace

// Finds the edges that lead back.
class DirectedEdges::WaysBack
{
public:
    explicit WaysBack(const PieceGraph &graph) : m_graph(graph)
    {
        for (int vertex = 0; vertex < graph.nodes.size(); ++vertex) {
            if (graph.edgeCount(vertex) <= LongList)
                continue;
            for (int edge = graph.end(vertex) - 1; edge >= graph.begin(vertex); --edge)
                m_ofLongLists.insert({vertex, graph.target(edge)}, edge);
        }
    }

    // The first edge from one vertex to the other, or None.
    int find(int from, int to) const
    {
        if (m_graph.edgeCount(from) > LongList)
            return m_ofLongLists.value({from, to}, None);
        const int *targets = m_graph.targets.data();
        for (int edge = m_graph.begin(from); edge < m_graph.end(from); ++edge) {
            if (targets[edge] == to)
                return edge;
        }
        return None;
    }

private:
    const PieceGraph &m_graph;
    QHash<QPair<int, int>, int> m_ofLongLists; // by vertex and target
};

DirectedEdges::DirectedEdges(PieceGraph graph)
    : m_graph(std::move(graph)), m_places(m_graph.targets.size(), None)
{
    // A run has an edge at least, and nextStop looks a word past the end.
    const int edges = int(m_places.size());
    arrived = used = m_barred = m_stops = BitRow(2 * edges + BitRow::WordBits);
    m_vertices.reserve(m_places.size() * 5 / 4);
    m_arrivals.reserve(m_places.size() * 5 / 4);
    layOut();
    if (!m_isSymmetric)
        m_stops.setRange(0, int(m_vertices.size()));
    if (m_graph.hasMarks)
        readMarks();
}

void DirectedEdges::layOut()
{
    const WaysBack back(m_graph);
    for (int vertex = 0; vertex < m_graph.nodes.size(); ++vertex) {
        for (int edge = m_graph.begin(vertex); edge < m_graph.end(vertex); ++edge) {
            if (placeOf(edge) == None)
                layOutRun(vertex, edge, back);
        }
    }
    m_runs.push_back(int(m_vertices.size()));
}

// Where all links are symmetric and listed once, a run closes where it began.
void DirectedEdges::layOutRun(int vertex, int first, const WaysBack &back)
{
    m_runs.push_back(int(m_vertices.size()));
    int edge = first;
    while (edge != None && placeOf(edge) == None) {
        const int place = int(m_vertices.size());
        const int target = m_graph.target(edge);
        const int twin = target == None ? None : back.find(target, vertex);
        m_places[size_t(edge)] = place;
        m_vertices.push_back(vertex);
        m_arrivals.push_back(twin);
        if (twin == None || m_graph.edgeCount(target) < 2) {
            m_barred.set(place);
            m_stops.set(place);
        }
        vertex = target;
        edge = twin == None ? None : m_graph.below(target, twin);
    }
    m_isSymmetric = m_isSymmetric && edge == first;
    m_stops.set(int(m_vertices.size()) - 1);
    m_vertices.push_back(vertex);
    m_arrivals.push_back(None);
}

void DirectedEdges::readMarks()
{
    for (int vertex = 0; vertex < m_graph.nodes.size(); ++vertex) {
        const IntersectionNode &node = *m_graph.nodes[vertex];
        for (int i = 0; i < node.neighbourCount(); ++i) {
            const int edge = m_graph.begin(vertex) + i;
            if (node.outgoingUsed[i])
                used.set(placeOf(edge));
            const int back = arrival(placeOf(edge));
            // Of a link that is listed twice, the first alone is arrived by.
            if (node.incomingUsed[i] && back != None && arrival(placeOf(back)) == edge)
                arrived.set(placeOf(back));
        }
    }
}

void DirectedEdges::writeMarks() const
{
    BitRow arrivedBy(int(m_places.size())); // by edge
    for (int place = 0; place < int(m_arrivals.size()); ++place) {
        if (arrived.has(place))
            arrivedBy.set(arrival(place));
    }
    for (int vertex = 0; vertex < m_graph.nodes.size(); ++vertex) {
        fetchNode(m_graph.nodes[qMin(vertex + FetchAhead, m_graph.nodes.size() - 1)]);
        IntersectionNode &node = *m_graph.nodes[vertex];
        for (int i = 0; i < node.neighbourCount(); ++i) {
            const int edge = m_graph.begin(vertex) + i;
            node.outgoingUsed[i] = node.outgoingUsed[i] || used.has(placeOf(edge));
            node.incomingUsed[i] = node.incomingUsed[i] || arrivedBy.has(edge);
        }
    }
}
