// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/directededges.h"
#include "mesh/facetracing.h"
#include "mesh/holes.h"
#include "mesh/meshbuilder.h"
#include "tests/mesh/plainpiece.h"
#include "tests/support/graphs.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <QPair>
#include <QSet>

#include <iostream>
#include <numeric>
#include <utility>

using orvane::Vector;

namespace {

struct Traced
{
    HoleCounts holes;
    QList<QVector<int>> faces; // as traced, none split
};

// Sorts, numbers in the order given, traces and counts. Every face is taken as it comes.
Traced traceInOrder(const QVector<IntersectionNode *> &nodes, int maxEdges)
{
    for (IntersectionNode *node : nodes)
        node->sortNeighboursByAngle();
    DirectedEdges edges(plainPiece(nodes));
    const PieceGraph &graph = edges.graph();
    MeshBuilder builder;
    builder.positions = graph.positions;
    builder.normals = graph.normals;
    FaceTracing tracing(edges, builder, maxEdges);
    Traced traced;
    for (int vertex = 0; vertex < nodes.size(); ++vertex) {
        for (int k = graph.begin(vertex); k < graph.end(vertex) && graph.edgeCount(vertex) > 1;
             ++k) {
            const QVector<int> &face = tracing.walkFace(k);
            if (!face.isEmpty())
                traced.faces.append(face);
        }
    }
    edges.writeMarks();
    traced.holes = countHoles(edges, builder, maxEdges);
    return traced;
}

Traced trace(const TestGraph &graph, int maxEdges)
{
    return traceInOrder(graph.nodes().toVector(), maxEdges);
}

void expectHoles(const HoleCounts &holes, int overLimit, int dangling, int unclosed)
{
    EXPECT_EQ(holes.overLimit, overLimit);
    EXPECT_EQ(holes.dangling, dangling);
    EXPECT_EQ(holes.unclosed, unclosed);
    EXPECT_EQ(holes.total(), overLimit + dangling + unclosed);
}

// The regions that the piece of a node leaves of a grid of unit squares, found by flooding squares
// across missing edges: another way round than following cycles of edges.
class FloodedGrid
{
public:
    FloodedGrid(const TestGraph &graph, int side, int start)
        : m_graph(graph), m_side(side), m_region(side * side + 1)
    {
        std::iota(m_region.begin(), m_region.end(), 0);
        collectEdges(start);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const int node = y * (side + 1) + x;
                for (int next : {node + 1, node + side + 1}) {
                    if (!m_edges.contains({node, next}))
                        join(leftOf(node, next), leftOf(next, node));
                }
            }
        }
        for (int i = 0; i < side; ++i) { // the far sides
            joinAcross(side * (side + 1) + i, side * (side + 1) + i + 1);
            joinAcross(i * (side + 1) + side, (i + 1) * (side + 1) + side);
        }
    }

    // Those of the piece.
    const QSet<int> &nodes() const { return m_nodes; }

    // Bounded regions along which no directed edge belongs to a face.
    HoleCounts holes(int maxEdges) const
    {
        const QSet<QPair<int, int>> core = withoutLooseEnds();
        HoleCounts holes;
        for (int region = 0; region < m_side * m_side; ++region) {
            if (root(region) != region || root(m_side * m_side) == region)
                continue;
            int all = 0;
            int ring = 0;
            bool hasFace = false;
            for (const QPair<int, int> &edge : qAsConst(m_edges)) {
                if (root(leftOf(edge.first, edge.second)) != region)
                    continue;
                ++all;
                ring += core.contains(edge);
                const IntersectionNode *node = m_graph[edge.first];
                hasFace |= node->outgoingUsed[node->indexOfNeighbour(m_graph[edge.second])];
            }
            if (!hasFace)
                ++(ring > maxEdges ? holes.overLimit
                   : ring < all    ? holes.dangling
                                   : holes.unclosed);
        }
        return holes;
    }

private:
    void collectEdges(int start)
    {
        const QList<IntersectionNode *> nodes = m_graph.nodes();
        QVector<int> stack{start};
        m_nodes.insert(start);
        while (!stack.isEmpty()) {
            const int node = stack.takeLast();
            for (IntersectionNode *neighbour : qAsConst(nodes[node]->neighbours)) {
                const int next = nodes.indexOf(neighbour);
                m_edges.insert({node, next});
                if (!m_nodes.contains(next))
                    stack.append(next);
                m_nodes.insert(next);
            }
        }
    }

    QSet<QPair<int, int>> withoutLooseEnds() const
    {
        QSet<QPair<int, int>> core = m_edges;
        for (bool changed = true; changed;) {
            QVector<int> degree(m_graph.count(), 0);
            for (const QPair<int, int> &edge : qAsConst(core))
                ++degree[edge.first];
            const int before = core.size();
            for (const QPair<int, int> &edge : QSet<QPair<int, int>>(core)) {
                if (degree[edge.first] == 1 || degree[edge.second] == 1)
                    core.remove(edge);
            }
            changed = core.size() < before;
        }
        return core;
    }

    // The square to the left of a directed edge; the last number for the outside.
    int leftOf(int from, int to) const
    {
        const int x = from % (m_side + 1);
        const int y = from / (m_side + 1);
        const int step = to - from;
        const int column = step == 1 || step < -1 ? x : x - 1;
        const int row = step == 1 || step > 1 ? y : y - 1;
        const bool isOn = column >= 0 && column < m_side && row >= 0 && row < m_side;
        return isOn ? row * m_side + column : m_side * m_side;
    }

    void joinAcross(int a, int b)
    {
        if (!m_edges.contains({a, b}))
            join(leftOf(a, b), leftOf(b, a));
    }
    void join(int a, int b) { m_region[root(a)] = root(b); }
    int root(int square) const
    {
        return m_region[square] == square ? square : root(m_region[square]);
    }

    const TestGraph &m_graph;
    int m_side;
    QVector<int> m_region; // by square: one of the same region, itself at the root
    QSet<int> m_nodes;
    QSet<QPair<int, int>> m_edges; // directed, both ways
};

QVector<IntersectionNode *> shuffled(const TestGraph &graph, std::mt19937 &random)
{
    QVector<IntersectionNode *> nodes = graph.nodes().toVector();
    for (int i = nodes.size() - 1; i > 0; --i)
        std::swap(nodes[i], nodes[int(random() % unsigned(i + 1))]);
    return nodes;
}

// Of all pieces together.
HoleCounts floodedHoles(const TestGraph &graph, int side, int maxEdges)
{
    HoleCounts sum;
    QSet<int> seen;
    for (int start = 0; start < graph.count(); ++start) {
        if (seen.contains(start))
            continue;
        FloodedGrid grid(graph, side, start);
        seen.unite(grid.nodes());
        const HoleCounts holes = grid.holes(maxEdges);
        sum.overLimit += holes.overLimit;
        sum.dangling += holes.dangling;
        sum.unclosed += holes.unclosed;
    }
    return sum;
}

// toCenter: a fraction of the way from the corner; below 0 points outwards.
TestGraph squareWithLooseEnds(const QVector<int> &corners, float toCenter)
{
    TestGraph graph = squareGraph();
    for (int corner : corners) {
        const Vector at = graph[corner]->position();
        graph.addLooseEnd(corner, at + (Vector(0.5f, 0.5f, 0.0f) - at) * toCenter);
    }
    return graph;
}

TestGraph looseGrid(int side, std::mt19937 &random)
{
    TestGraph graph = gridGraph(side, side);
    const unsigned kept = 60 + random() % 40u; // per cent
    const float jitter = random() % 2u ? 0.0f : 0.3f;
    for (int i = 0; i < graph.count(); ++i) {
        graph[i]->position() += Vector(randomBetween(random, -jitter, jitter),
                                       randomBetween(random, -jitter, jitter), 0.0f);
        for (int next : {i + 1, i + side + 1}) {
            if (next < graph.count() && graph[i]->hasNeighbour(graph[next])
                && random() % 100u >= kept)
                graph.unlink(i, next);
        }
    }
    return graph;
}

} // namespace

TEST(Holes, aPieceOfWhichEveryCellIsMadeHasNone)
{
    expectHoles(trace(squareGraph(), 4).holes, 0, 0, 0);
    expectHoles(trace(gridGraph(3, 2), 4).holes, 0, 0, 0);
    expectHoles(trace(notchedHexagon(), 6).holes, 0, 0, 0);
}

TEST(Holes, theOuterBoundaryIsNotCounted)
{
    // Its eight edges are over the limit, and it has no face.
    const TestGraph graph = gridGraph(2, 2);
    const Traced traced = trace(graph, 4);
    EXPECT_EQ(traced.faces.size(), 4);
    expectHoles(traced.holes, 0, 0, 0);
}

TEST(Holes, aCellOfMoreEdgesThanTheLimitCounts)
{
    expectHoles(trace(squareGraph(), 3).holes, 1, 0, 0);
    expectHoles(trace(gridGraph(3, 2), 3).holes, 6, 0, 0);
    expectHoles(trace(ringGraph(9), 8).holes, 1, 0, 0);
}

TEST(Holes, looseEndsInsideAtTwoCornersCountOnce)
{
    const Traced one = trace(squareWithLooseEnds({0}, 0.4f), 4);
    EXPECT_EQ(one.faces.size(), 1);
    expectHoles(one.holes, 0, 0, 0);
    const Traced two = trace(squareWithLooseEnds({0, 2}, 0.4f), 4);
    EXPECT_TRUE(two.faces.isEmpty());
    expectHoles(two.holes, 0, 1, 0);
    expectHoles(trace(squareWithLooseEnds({0, 1, 2, 3}, 0.4f), 4).holes, 0, 1, 0);
    expectHoles(trace(squareWithLooseEnds({0, 2}, 0.4f), 3).holes, 1, 0, 0);
}

TEST(Holes, looseEndsOutsideDoNoHarm)
{
    const Traced traced = trace(squareWithLooseEnds({0, 1, 2, 3}, -0.4f), 4);
    EXPECT_EQ(traced.faces.size(), 1);
    expectHoles(traced.holes, 0, 0, 0);
}

TEST(Holes, branchedLooseEndsCountLikePlainOnes)
{
    for (int limit : {3, 4}) {
        TestGraph graph = squareWithLooseEnds({0, 2}, 0.2f);
        for (int end : {4, 5}) {
            const Vector at = graph[end]->position() * 0.8f + Vector(0.1f, 0.1f, 0.0f);
            graph.addLooseEnd(end, at + Vector(0.05f, 0, 0));
            graph.addLooseEnd(end, at + Vector(0, 0.05f, 0));
        }
        const Traced traced = trace(graph, limit);
        EXPECT_TRUE(traced.faces.isEmpty());
        expectHoles(traced.holes, limit == 3, limit == 4, 0);
    }
}

TEST(Holes, treesHaveNoCells)
{
    expectHoles(trace(starGraph(7), 5).holes, 0, 0, 0);
    TestGraph path;
    path.add({0, 0, 0});
    expectHoles(trace(path, 5).holes, 0, 0, 0);
    for (int i = 1; i < 6; ++i)
        path.addLooseEnd(i - 1, {float(i), float(i % 2), 0.0f});
    expectHoles(trace(path, 5).holes, 0, 0, 0);
    path.addLooseEnd(3, {3, 5, 0});
    expectHoles(trace(path, 5).holes, 0, 0, 0);
}

TEST(Holes, aClosedSurfaceHasNoOutside)
{
    const Traced traced = trace(cubeGraph(), 4);
    EXPECT_EQ(traced.faces.size(), 6);
    expectHoles(traced.holes, 0, 0, 0);
    expectHoles(trace(cubeGraph(), 3).holes, 6, 0, 0);
}

TEST(Holes, aRingBesideARingThatIsJoinedByOneBridgeIsFilledByTheOuterOne)
{
    // The walk from the bridge's own corner comes back to it before the bridge is taken.
    const Traced traced = trace(annulusGraph(1), 4);
    EXPECT_EQ(traced.faces.size(), 2);
    expectHoles(traced.holes, 0, 0, 0);
}

TEST(Holes, aThinStarIsTakenForTheOutsideAndStaysOpen)
{
    // Its notches turn by more than its tips do, so that the outer cycle passes for the inner one.
    const auto thinStar = []() {
        return polygonGraph({{10, 0, 0},
                             {0.5f, 0.9f, 0},
                             {-5, 8.7f, 0},
                             {-1, 0, 0},
                             {-5, -8.7f, 0},
                             {0.5f, -0.9f, 0}});
    };
    const Traced traced = trace(thinStar(), 6);
    EXPECT_EQ(traced.faces.size(), 1);
    expectHoles(traced.holes, 0, 0, 1);
    expectHoles(trace(thinStar(), 5).holes, 1, 0, 0);
}

TEST(Holes, agreeWithFloodedRegionsOfGridsThatMissEdges)
{
    std::mt19937 random(testSeed());
    HoleCounts seen;
    for (int run = 0; run < 5000; ++run) {
        const int side = 2 + int(random() % 6u);
        const TestGraph graph = looseGrid(side, random);
        const int maxEdges = 4 + int(random() % 20u);
        const HoleCounts counted = traceInOrder(shuffled(graph, random), maxEdges).holes;
        const HoleCounts flooded = floodedHoles(graph, side, maxEdges);
        SCOPED_TRACE("run " + std::to_string(run));
        expectHoles(counted, flooded.overLimit, flooded.dangling, flooded.unclosed);
        seen.overLimit += flooded.overLimit;
        seen.dangling += flooded.dangling;
        seen.unclosed += flooded.unclosed;
        if (HasFailure())
            break;
    }
    std::cout << seen.overLimit << " over the limit, " << seen.dangling << " dangling, "
              << seen.unclosed << " unclosed" << std::endl;
    EXPECT_GT(seen.overLimit, 100);
    EXPECT_GT(seen.dangling, 10);
}
