// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/buildmesh.h"
#include "mesh/neighbourordering.h"
#include "tests/mesh/plainbuild.h"
#include "tests/support/dialoganswer.h"
#include "tests/support/graphchecks.h"
#include "tests/support/graphs.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/mesh.h>

#include <QScopedPointer>

#include <cmath>
#include <iostream>

using orvane::Vector;

namespace {

// Few places, so that neighbours in one direction, and at the node itself, are common.
TestGraph crowdedGraph(std::mt19937 random)
{
    TestGraph graph;
    const int count = 2 + int(random() % 30u);
    for (int i = 0; i < count; ++i) {
        const Vector normal(0, 0, random() % 4u == 0 ? 0.0f : 1.0f);
        graph.add({float(random() % 4u), float(random() % 4u), float(random() % 2u)}, normal);
    }
    for (unsigned link = random() % 90u; link > 0; --link)
        graph.link(int(random() % unsigned(count)), int(random() % unsigned(count)));
    return graph;
}

// Neighbours in nearly the same direction, so near that rounding decides how they are ordered.
TestGraph bristlyGraph(std::mt19937 random)
{
    TestGraph graph;
    const unsigned tilt = random() % 2u;
    graph.add(Vector(), Vector(0, 0, 1) + randomVector(random, 0.3f) * float(tilt));
    const int count = 3 + int(random() % 12u);
    const double spread = std::pow(10.0, -double(random() % 9u));
    const double towards = std::acos(0.0) * (random() % 5u);
    for (int i = 0; i < count; ++i) {
        const double angle = towards + spread * double(randomVector(random, 1.0f).x);
        const double length = 1.0 + double(random() % 3u);
        graph.add(Vector(float(length * std::cos(angle)), float(length * std::sin(angle)), 0.0f)
                  + randomVector(random, 0.1f) * float(tilt));
        graph.link(0, i + 1);
        if (random() % 2u == 0u)
            graph.link(i + 1, 1 + int(random() % unsigned(count)) % (i + 1));
    }
    return graph;
}

// A bent grid with holes and loose ends.
TestGraph raggedGrid(std::mt19937 random)
{
    const int side = 2 + int(random() % 6u);
    TestGraph graph = gridGraph(side, side);
    for (int i = 0; i < graph.count(); ++i)
        graph[i]->position() += randomVector(random, 0.3f);
    for (unsigned cut = random() % unsigned(2 * side); cut > 0; --cut) {
        const int node = int(random() % unsigned(graph.count()));
        if (graph[node]->neighbourCount() > 1)
            graph[node]->removeNeighbourAt(0);
    }
    return graph;
}

QVector<int> numbersOf(const TestGraph &graph, const QList<IntersectionNode *> &list)
{
    const QList<IntersectionNode *> nodes = graph.nodes();
    QVector<int> numbers;
    for (IntersectionNode *node : list)
        numbers.append(nodes.indexOf(node));
    return numbers;
}

class PlainBuild : public SceneCleaner
{
protected:
    void compare(TestGraph (*make)(std::mt19937), std::mt19937 &random)
    {
        const TestGraph graph = make(random);
        const TestGraph plain = make(random);
        random.discard(1000);
        const int start = int(random() % unsigned(graph.count()));
        const int maxEdges = 3 + int(random() % 8u);

        orderNeighbours(graph[start]);
        plainOrder(plain[start]);
        for (int i = 0; i < graph.count(); ++i)
            ASSERT_EQ(numbersOf(graph, graph[i]->neighbours),
                      numbersOf(plain, plain[i]->neighbours))
                << "node " << i;

        DialogAnswer answer(QStringLiteral("accept"));
        const BuiltPiece piece = buildMeshFromGraph(graph[start], maxEdges);
        const QScopedPointer<orvane::Mesh> mesh(piece.mesh);
        const MeshBuilder builder = plainBuild(plain[start], maxEdges);
        const QScopedPointer<orvane::Mesh> expected(builder.createMesh());
        ASSERT_EQ(piece.nodes, builder.positions.size());
        ASSERT_EQ(piece.builderFaces, builder.faces.size());
        for (int i = 0; i < graph.count(); ++i)
            ASSERT_EQ(graph[i]->vertexIndex, plain[i]->vertexIndex) << "node " << i;
        ASSERT_EQ(markedOutgoing(graph), markedOutgoing(plain));
        ASSERT_EQ(markedIncoming(graph), markedIncoming(plain));
        ASSERT_EQ(mesh.isNull(), expected.isNull());
        if (!mesh)
            return;
        EXPECT_EQ(mesh->Type(), expected->Type());
        EXPECT_EQ(mesh->Corners(), expected->Corners());
        EXPECT_EQ(mesh->Positions(), expected->Positions());
        faces += builder.faces.size();
    }

    void compareMany(TestGraph (*make)(std::mt19937), int runs)
    {
        std::mt19937 random(testSeed());
        for (int run = 0; run < runs && !HasFatalFailure(); ++run) {
            SCOPED_TRACE("run " + std::to_string(run));
            compare(make, random);
        }
        std::cout << faces << " faces" << std::endl;
        EXPECT_GT(faces, runs / 4);
    }

    int faces = 0;
};

} // namespace

TEST_F(PlainBuild, crowdedGraphsAreOrderedNumberedAndTracedAsDefined)
{
    compareMany(crowdedGraph, 300);
}

TEST_F(PlainBuild, neighboursInNearlyOneDirectionAreOrderedAsDefined)
{
    compareMany(bristlyGraph, 2000);
}

TEST_F(PlainBuild, raggedGridsAreOrderedNumberedAndTracedAsDefined)
{
    compareMany(raggedGrid, 300);
}
