// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/cutvertices.h"

#include <algorithm>

namespace {

const int NotSeen = -1;

class CutVertexSearch
{
public:
    CutVertexSearch(int vertexCount, const QVector<QPair<int, int>> &links)
        : m_neighbours(vertexCount), m_seenAt(vertexCount, NotSeen), m_reaches(vertexCount)
    {
        for (const QPair<int, int> &link : links) {
            m_neighbours[link.first].append(link.second);
            m_neighbours[link.second].append(link.first);
        }
    }

    QSet<int> run()
    {
        for (int vertex = 0; vertex < m_neighbours.size(); ++vertex) {
            if (m_seenAt[vertex] == NotSeen && exploreFrom(vertex) > 1)
                m_result.insert(vertex);
        }
        return m_result;
    }

private:
    struct Visit
    {
        int vertex;
        int parent;
        int next = 0; // of its neighbours
    };

    void enter(int vertex, int parent)
    {
        m_seenAt[vertex] = m_reaches[vertex] = m_clock++;
        m_stack.append({vertex, parent});
    }

    // Answers how many subtrees hang from the root.
    int exploreFrom(int root)
    {
        int subtrees = 0;
        enter(root, NotSeen);
        while (!m_stack.isEmpty()) {
            Visit &visit = m_stack.last();
            if (visit.next == m_neighbours[visit.vertex].size()) {
                const Visit done = m_stack.takeLast();
                subtrees += done.parent == root;
                leave(done, root);
                continue;
            }
            const int neighbour = m_neighbours[visit.vertex][visit.next++];
            if (m_seenAt[neighbour] == NotSeen)
                enter(neighbour, visit.vertex);
            else if (neighbour != visit.parent)
                reach(visit.vertex, m_seenAt[neighbour]);
        }
        return subtrees;
    }

    void leave(const Visit &done, int root)
    {
        if (done.parent == NotSeen)
            return;
        reach(done.parent, m_reaches[done.vertex]);
        if (done.parent != root && m_reaches[done.vertex] >= m_seenAt[done.parent])
            m_result.insert(done.parent);
    }

    void reach(int vertex, int time) { m_reaches[vertex] = std::min(m_reaches[vertex], time); }

    QVector<QVector<int>> m_neighbours;
    QVector<int> m_seenAt;  // when each vertex was seen first
    QVector<int> m_reaches; // the earliest seen vertex that it and those below it lead back to
    QVector<Visit> m_stack;
    QSet<int> m_result;
    int m_clock = 0;
};

} // namespace

QSet<int> cutVertices(int vertexCount, const QVector<QPair<int, int>> &links)
{
    return CutVertexSearch(vertexCount, links).run();
}
