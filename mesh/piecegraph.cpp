// SPDX-License-Identifier: MIT
#include "mesh/piecegraph.h"

#include "graph/fetch.h"
#include "graph/nodemarks.h"

#include <limits>

namespace {

const int Null = -1;

// The walk may come there in two steps.
void fetchBeyond(const IntersectionNode &neighbour)
{
    for (const IntersectionNode *beyond : neighbour.neighbours) {
        if (beyond)
            fetch(&beyond->neighbours);
    }
}

// Nodes are known by the order in which they are first seen until all have their vertex number:
// a neighbour may be seen long before the walk comes to it.
class NumberingWalk
{
public:
    explicit NumberingWalk(IntersectionNode *start)
    {
        if (start)
            m_stack.push_back(sighting(start));
        while (!m_stack.empty()) {
            const int sight = m_stack.back();
            m_stack.pop_back();
            if (m_vertices[size_t(sight)] < 0)
                visit(sight);
        }
        for (int &target : m_graph.targets)
            target = target == Null ? Null : m_vertices[size_t(target)];
    }

    PieceGraph take() { return std::move(m_graph); }

private:
    int sighting(IntersectionNode *node)
    {
        if (m_marks.has(node))
            return m_marks.of(node);
        const int sight = int(m_seen.size());
        m_marks.set(node, sight);
        m_seen.push_back(node);
        m_vertices.push_back(-1);
        return sight;
    }

    void visit(int sight)
    {
        IntersectionNode *node = m_seen[size_t(sight)];
        m_vertices[size_t(sight)] = m_graph.nodes.size();
        m_graph.add(node);
        for (IntersectionNode *neighbour : qAsConst(node->neighbours)) {
            const int next = neighbour ? sighting(neighbour) : Null;
            m_graph.targets.push_back(next);
            if (!neighbour || m_vertices[size_t(next)] >= 0)
                continue;
            m_stack.push_back(next);
            fetchBeyond(*neighbour);
            fetch(&neighbour->normal);
            fetch(&neighbour->outgoingUsed);
        }
        m_graph.firstEdges.push_back(int(m_graph.targets.size()));
    }

    NodeMarks m_marks{std::numeric_limits<int>::max()}; // sightings
    std::vector<IntersectionNode *> m_seen;             // by sighting
    std::vector<int> m_vertices;                        // by sighting; -1 until visited
    std::vector<int> m_stack;                           // sightings
    PieceGraph m_graph;
};

} // namespace

void PieceGraph::add(IntersectionNode *node)
{
    node->vertexIndex = nodes.size();
    nodes.append(node);
    positions.append(node->position());
    normals.append(node->normal);
    hasMarks = hasMarks || node->outgoingUsed.contains(true) || node->incomingUsed.contains(true);
}

PieceGraph numberedPiece(IntersectionNode *start)
{
    return NumberingWalk(start).take();
}
