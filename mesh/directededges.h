// SPDX-License-Identifier: MIT
#pragma once

#include "mesh/bitrow.h"
#include "mesh/piecegraph.h"

//! The directed edges of a piece in the order in which walks meet them that turn left at every
//! vertex: from the edge arrived by on to the one below it in the vertex's list. Each edge has a
//! place. Edges that follow each other stand in runs, each run a whole left-turning cycle, so that
//! a walk is a step to the next place wherever nothing stops it. Runs come in the order of their
//! first edges.
//! Links that are not symmetric, or listed twice, do no harm: walks stop there and look closely.
class DirectedEdges
{
public:
    static constexpr int None = -1;

    explicit DirectedEdges(PieceGraph graph);

    const PieceGraph &graph() const { return m_graph; }
    int placeOf(int edge) const { return m_places[size_t(edge)]; }

    int runCount() const { return int(m_runs.size()) - 1; }
    //! Place of the run's first edge.
    int runStart(int run) const { return m_runs[size_t(run)]; }
    //! Place after its last edge, one that no edge has.
    int runEnd(int run) const { return m_runs[size_t(run) + 1] - 1; }

    //! By place, the vertex that the edge leaves. The edge at a place leads to the vertex at the
    //! next place; after a run stands the one that its last edge leads to, or None.
    const int *vertices() const { return m_vertices.data(); }
    //! Is there no way to arrive along the edge, because it leads nowhere, or to a loose end?
    bool isBarred(int place) const { return m_barred.has(place); }
    //! The edge that leads back from where the edge at a place leads; None where there is none.
    int arrival(int place) const { return m_arrivals[size_t(place)]; }
    //! Where in arrived the edge at a place, not barred, leaves its mark.
    int arrivalMark(int place) const
    {
        return m_isSymmetric ? place : placeOf(arrival(placeOf(arrival(place))));
    }

    //! The first place from here on where a walk may not simply go on to the next place, with
    //! edges that are marked, and because of the graph itself.
    int nextStop(int place) const
    {
        int i = place / BitRow::WordBits;
        quint64 bits = stopWord(i) & (~quint64(0) << (place % BitRow::WordBits));
        while (bits == 0)
            bits = stopWord(++i);
        return i * BitRow::WordBits + int(qCountTrailingZeroBits(bits));
    }

    //! Sets the flags of the nodes' lists that are marked here; clears none.
    void writeMarks() const;

    // As the nodes' flag lists have them at first.
    BitRow arrived; // by place: the edge has been arrived along
    BitRow used;    // by place: the edge belongs to a face or to the walk in progress

private:
    class WaysBack;

    void readMarks();
    void layOut();
    void layOutRun(int vertex, int first, const WaysBack &back);
    quint64 stopWord(int i) const
    {
        return m_stops.word(i) | arrived.word(i) | used.word(i) >> 1
               | used.word(i + 1) << (BitRow::WordBits - 1);
    }

    PieceGraph m_graph;
    std::vector<int> m_places;   // by edge
    std::vector<int> m_vertices; // by place
    std::vector<int> m_arrivals; // by place
    std::vector<int> m_runs;     // places of their first edges, and the end
    BitRow m_barred;             // by place
    BitRow m_stops;              // by place: a walk never simply goes on from here
    bool m_isSymmetric = true;   // every link, and none is listed twice
};
