// SPDX-License-Identifier: MIT
#include "graph/pieces.h"

#include "graph/nodemarks.h"

#include <orvane/base/timer.h>

#include <QVector>

#include <algorithm>
#include <vector>

namespace {

// Nodes that links join, by their numbers in the list. A piece goes by its lowest number.
class JoinedNodes
{
public:
    explicit JoinedNodes(int count) : m_parent(size_t(count)) {}

    void add(int node) { parent(node) = node; }
    void join(int a, int b)
    {
        a = root(a);
        b = root(b);
        parent(std::max(a, b)) = std::min(a, b);
    }
    int root(int node)
    {
        while (parent(node) != node)
            node = parent(node) = parent(parent(node));
        return node;
    }

private:
    int &parent(int node) { return m_parent[size_t(node)]; }

    std::vector<int> m_parent; // by number: a lower one of the same piece, itself at the root
};

// In the order of the list, which is that of the memory: a walk along the links would wait for
// each node in turn.
JoinedNodes joinedNodes(const QList<IntersectionNode *> &nodes)
{
    JoinedNodes joined(nodes.size());
    NodeMarks numbers(nodes.size() + 1);
    for (int i = 0; i < nodes.size(); ++i) {
        joined.add(i);
        numbers.set(nodes[i], i);
        for (const IntersectionNode *neighbour : qAsConst(nodes[i]->neighbours)) {
            if (neighbour && numbers.has(neighbour)) // if not, it comes later or is not listed
                joined.join(i, numbers.of(neighbour));
        }
    }
    return joined;
}

} // namespace

void findPieces(const QList<IntersectionNode *> &nodes, QList<IntersectionNode *> &seeds)
{
    seeds.clear();
    JoinedNodes joined = joinedNodes(nodes);
    QVector<int> seedOf(nodes.size()); // by root: place in seeds
    for (int i = 0; i < nodes.size(); ++i) {
        const int root = joined.root(i);
        if (root == i) {
            seedOf[i] = seeds.size();
            seeds.append(nodes[i]);
            continue;
        }
        IntersectionNode *&seed = seeds[seedOf[root]];
        if (seed->neighbourCount() < 2 && nodes[i]->neighbourCount() >= 2)
            seed = nodes[i];
    }
    orvane::Timer::LogAll();
}
