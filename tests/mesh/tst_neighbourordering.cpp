// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "mesh/neighbourordering.h"
#include "tests/support/graphchecks.h"
#include "tests/support/graphs.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <QElapsedTimer>
#include <QtAlgorithms>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>

using orvane::Vector;

namespace {

const double Pi = 3.14159265358979323846;

// Node 0 at the origin and its neighbours, linked in the order given.
TestGraph fanGraph(const QVector<Vector> &neighbours, const Vector &normal = {0, 0, 1})
{
    TestGraph graph;
    graph.add({0, 0, 0}, normal);
    for (const Vector &position : neighbours)
        graph.addLooseEnd(0, position);
    return graph;
}

QVector<int> orderOf(const TestGraph &graph, int node)
{
    const QList<IntersectionNode *> all = graph.nodes();
    QVector<int> order;
    for (IntersectionNode *neighbour : qAsConst(graph[node]->neighbours))
        order.append(all.indexOf(neighbour));
    return order;
}

QVector<int> sortedOrder(const TestGraph &graph)
{
    graph[0]->sortNeighboursByAngle();
    return orderOf(graph, 0);
}

QVector<int> ascending(QVector<int> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

Vector inPlane(double degrees, double length = 1.0)
{
    const double angle = degrees * Pi / 180.0;
    return {float(length * std::cos(angle)), float(length * std::sin(angle)), 0.0f};
}

struct Triple
{
    double x;
    double y;
    double z;

    explicit Triple(const Vector &v) : x(double(v.x)), y(double(v.y)), z(double(v.z)) {}
    Triple(double ax, double ay, double az) : x(ax), y(ay), z(az) {}
    Triple operator-(const Triple &o) const { return {x - o.x, y - o.y, z - o.z}; }
    Triple operator*(double s) const { return {x * s, y * s, z * s}; }
    double dot(const Triple &o) const { return x * o.x + y * o.y + z * o.z; }
    double length() const { return std::sqrt(dot(*this)); }
    Triple cross(const Triple &o) const
    {
        return {y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x};
    }
};

// Counter-clockwise angles of the neighbours about the normal, measured from the direction a
// quarter turn beyond neighbour 0: in the tangent plane, from an axis that has nothing to do with
// any neighbour. Empty when one comes too close to a tie, to the start, or to the normal.
QVector<double> trueAngles(const TestGraph &graph, const Triple &normal)
{
    const Triple axis = normal * (1.0 / normal.length());
    const Triple aside = std::fabs(axis.x) < 0.6 ? Triple(1, 0, 0) : Triple(0, 1, 0);
    const Triple u = axis.cross(aside) * (1.0 / axis.cross(aside).length());
    const Triple v = axis.cross(u);
    QVector<double> angles;
    for (int i = 1; i < graph.count(); ++i) {
        const Triple d = Triple(graph[i]->position()) - Triple(graph[0]->position());
        const double outOfPlane = std::fabs(axis.dot(d)) / d.length();
        if (!(outOfPlane < 0.97))
            return {};
        angles.append(std::atan2(v.dot(d), u.dot(d)));
    }
    const double start = angles.first() + 0.5 * Pi;
    for (double &angle : angles)
        angle = std::fmod(angle - start + 6.0 * Pi, 2.0 * Pi);
    QVector<double> apart = angles;
    apart << 0.0 << 2.0 * Pi;
    std::sort(apart.begin(), apart.end());
    for (int i = 1; i < apart.size(); ++i) {
        if (apart[i] - apart[i - 1] < 1e-3)
            return {};
    }
    return angles;
}

// Node numbers by angle.
QVector<int> trueOrder(const QVector<double> &angles)
{
    QVector<int> order;
    for (int i = 0; i < angles.size(); ++i)
        order.append(i + 1);
    std::sort(order.begin(), order.end(),
              [&](int a, int b) { return angles[a - 1] < angles[b - 1]; });
    return order;
}

// What a node without a normal takes for one: the corners between consecutive neighbours, each
// weighted by its angle, the closing one left out.
Triple trueNormal(const TestGraph &graph)
{
    const Triple center(graph[0]->position());
    Triple sum(0, 0, 0);
    for (int i = 1; i + 1 < graph.count(); ++i) {
        const Triple a = Triple(graph[i]->position()) - center;
        const Triple b = Triple(graph[i + 1]->position()) - center;
        const Triple turn = a.cross(b) * std::acos(a.dot(b) / (a.length() * b.length()));
        sum = {sum.x + turn.x, sum.y + turn.y, sum.z + turn.z};
    }
    return sum;
}

bool isOfFewerTurns(const QPair<int, int> &a, const QPair<int, int> &b)
{
    return a.first < b.first;
}

QVector<int> secondsOf(const QVector<QPair<int, int>> &records)
{
    QVector<int> result;
    for (const QPair<int, int> &record : records)
        result.append(record.second);
    return result;
}

#if defined(__GNUC__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif
QVector<int> afterDeprecatedSort(QVector<QPair<int, int>> records)
{
    qSort(records.begin(), records.end(), isOfFewerTurns);
    return secondsOf(records);
}
#if defined(__GNUC__)
#    pragma GCC diagnostic pop
#endif

TestGraph randomFan(std::mt19937 &random, const Vector &normal)
{
    TestGraph graph;
    const Vector center = randomVector(random, 5.0f);
    graph.add(center, normal);
    const int degree = 2 + int(random() % 11u);
    for (int i = 0; i < degree; ++i) {
        const float reach = randomBetween(random, 0.05f, 3.0f);
        graph.addLooseEnd(0, center + orvane::Normalized(randomVector(random)) * reach);
    }
    return graph;
}

} // namespace

TEST(NeighbourOrdering, aNullStartNodeLeavesEverythingUntouched)
{
    const TestGraph graph = gridGraph(2, 2);
    QVector<QVector<int>> before;
    for (int i = 0; i < graph.count(); ++i)
        before.append(orderOf(graph, i));
    orderNeighbours(nullptr);
    for (int i = 0; i < graph.count(); ++i)
        EXPECT_EQ(orderOf(graph, i), before[i]) << "node " << i;
}

TEST(NeighbourOrdering,
     nodesWithNoneOrOneNeighbourKeepTheirListAndInACycleEveryNodeIsSortedExactlyOnce)
{
    TestGraph alone;
    alone.add({1, 2, 3});
    orderNeighbours(alone[0]);
    EXPECT_EQ(alone[0]->neighbourCount(), 0);

    TestGraph graph = gridGraph(3, 3);
    const int looseEnd = graph.addLooseEnd(5, {1.3f, 1.2f, 0.0f});
    TestGraph sortedOnce = gridGraph(3, 3);
    sortedOnce.addLooseEnd(5, {1.3f, 1.2f, 0.0f});
    TestGraph sortedTwice = gridGraph(3, 3);
    sortedTwice.addLooseEnd(5, {1.3f, 1.2f, 0.0f});
    for (int i = 0; i < graph.count(); ++i) {
        sortedOnce[i]->sortNeighboursByAngle();
        sortedTwice[i]->sortNeighboursByAngle();
        sortedTwice[i]->sortNeighboursByAngle();
    }
    orderNeighbours(graph[0]);
    EXPECT_EQ(orderOf(graph, looseEnd), QVector<int>{5});
    for (int i = 0; i < graph.count(); ++i) {
        EXPECT_EQ(orderOf(graph, i), orderOf(sortedOnce, i)) << "node " << i;
        if (i != looseEnd) { // or sorting once could not be told from sorting twice
            EXPECT_NE(orderOf(sortedOnce, i), orderOf(sortedTwice, i)) << "node " << i;
        }
    }
}

TEST(NeighbourOrdering, eastSouthWestNorthBecomesNorthWestSouthEast)
{
    const TestGraph graph = fanGraph({{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}});
    EXPECT_EQ(sortedOrder(graph), QVector<int>({4, 3, 2, 1}));
}

TEST(NeighbourOrdering, aZeroNormalIsMadeFromTheCornersWeightedByTheirAnglesWithoutTheClosingOne)
{
    // The closing corner, from node 3 to node 1, would turn the normal over.
    const TestGraph open = fanGraph({inPlane(0, 10), inPlane(60, 0.1), inPlane(170, 10)}, {});
    EXPECT_EQ(sortedOrder(open), QVector<int>({3, 1, 2}));
    EXPECT_EQ(open[0]->normal, Vector());

    // By area alone the first corner would win; by its angle the second does.
    const TestGraph weighted = fanGraph({inPlane(0, 2), inPlane(30), inPlane(-120)}, {});
    const TestGraph below = fanGraph({inPlane(0, 2), inPlane(30), inPlane(-120)}, {0, 0, -1});
    EXPECT_EQ(sortedOrder(weighted), sortedOrder(below));
    const TestGraph above = fanGraph({inPlane(0, 2), inPlane(30), inPlane(-120)});
    EXPECT_NE(orderOf(weighted, 0), sortedOrder(above));
}

TEST(NeighbourOrdering, aNeighbourAtTheReferenceComesFirstAndOneAHairClockwiseOfItComesLast)
{
    for (float hair : {1e-2f, 1e-4f, 1e-7f}) {
        // The reference of node 1, east, is north.
        const TestGraph graph = fanGraph({{1, 0, 0}, {0, 1, 0}, {hair, 1, 0}, {-1, 0, 0}});
        EXPECT_EQ(sortedOrder(graph), QVector<int>({2, 4, 1, 3})) << hair;
    }
}

TEST(NeighbourOrdering, runsCounterClockwiseSeenFromOutsideAtEveryNodeOfAClosedSurface)
{
    const TestGraph graph = cubeGraph();
    orderNeighbours(graph[0]);
    EXPECT_TRUE(isSound(graph.nodes()));
    for (int i = 0; i < graph.count(); ++i) {
        const Vector n = graph[i]->normal;
        const Vector a = graph[i]->neighbours[0]->position() - graph[i]->position();
        const Vector b = graph[i]->neighbours[1]->position() - graph[i]->position();
        EXPECT_GT(orvane::Dot(n, a & b), 0.0f) << "node " << i;
    }
}

// Neighbours straight on the axes have angles that are exactly equal or clearly apart, so their
// quarter turns stand for them.
TEST(NeighbourOrdering, exactlyEqualAnglesEndAsTheDeprecatedSortOfQtLeavesThem)
{
    std::mt19937 random(testSeed());
    const QVector<Vector> quarters{{0, 1, 0}, {-1, 0, 0}, {0, -1, 0}, {1, 0, 0}};
    int unstable = 0;
    for (int run = 0; run < 200; ++run) {
        QVector<Vector> positions{quarters[3]};
        QVector<QPair<int, int>> records{{3, 1}}; // quarter turns from the reference, node number
        while (positions.size() < 2 + run % 40) {
            const int turns = int(random() % 4u);
            positions.append(quarters[turns] * float(1 + random() % 4u));
            records.append({turns, positions.size()});
        }
        const QVector<int> expected = afterDeprecatedSort(records);
        ASSERT_EQ(sortedOrder(fanGraph(positions)), expected) << "run " << run;
        std::stable_sort(records.begin(), records.end(), isOfFewerTurns);
        unstable += expected != secondsOf(records);
    }
    EXPECT_GT(unstable, 0); // or any other sort would do
}

TEST(NeighbourOrdering, aTinyNormalWhoseSquareVanishesCountsAsZero)
{
    const QVector<Vector> corners{inPlane(0), inPlane(100), inPlane(200)};
    const TestGraph vanishing = fanGraph(corners, {0, 0, -1e-30f});
    EXPECT_EQ(sortedOrder(vanishing), sortedOrder(fanGraph(corners, {0, 0, 1})));
    const TestGraph small = fanGraph(corners, {0, 0, -1e-15f});
    EXPECT_EQ(sortedOrder(small), sortedOrder(fanGraph(corners, {0, 0, -1})));
}

TEST(NeighbourOrdering, flagListsKeepTheirOrder)
{
    const TestGraph graph = fanGraph({{1, 0, 0}, {0, -1, 0}, {-1, 0, 0}, {0, 1, 0}});
    graph[0]->outgoingUsed[1] = true;
    graph[0]->incomingUsed[3] = true;
    orderNeighbours(graph[0]);
    EXPECT_EQ(graph[0]->outgoingUsed, QList<bool>({false, true, false, false}));
    EXPECT_EQ(graph[0]->incomingUsed, QList<bool>({false, false, false, true}));
}

TEST(NeighbourOrdering, agreesWithTheAnglesInDoublePrecision)
{
    std::mt19937 random(testSeed());
    int compared = 0;
    while (compared < 3000) {
        const Vector normal = randomVector(random, randomBetween(random, 0.01f, 10.0f));
        const TestGraph graph = randomFan(random, normal);
        const QVector<double> angles = trueAngles(graph, Triple(normal));
        if (angles.isEmpty())
            continue;
        ++compared;
        ASSERT_EQ(sortedOrder(graph), trueOrder(angles)) << "case " << compared;
    }
}

TEST(NeighbourOrdering, agreesWithTheAnglesAboutASynthesisedNormal)
{
    std::mt19937 random(testSeed());
    int compared = 0;
    while (compared < 3000) {
        const TestGraph graph = randomFan(random, {});
        const Triple normal = trueNormal(graph);
        if (normal.length() < 1e-2)
            continue;
        const QVector<double> angles = trueAngles(graph, normal);
        if (angles.isEmpty())
            continue;
        ++compared;
        ASSERT_EQ(sortedOrder(graph), trueOrder(angles)) << "case " << compared;
    }
}

TEST(NeighbourOrdering, pointsThatAreNotNumbersOrCoincideLoseNoNeighbour)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    std::mt19937 random(testSeed());
    const QVector<Vector> odd{{nan, nan, nan}, {nan, 0, 0}, {infinity, 0, 0}, {0, 0, 0}};
    for (int run = 0; run < 200; ++run) {
        TestGraph graph;
        graph.add(run % 5 == 4 ? odd[run % 4] : Vector(), run % 3 ? Vector(0, 0, 1) : Vector());
        const int degree = 2 + int(random() % 40u);
        QVector<int> all;
        for (int i = 0; i < degree; ++i) {
            const bool isOdd = random() % 3u == 0u;
            const Vector place = isOdd ? odd[int(random() % 4u)] : randomVector(random);
            all.append(graph.addLooseEnd(0, place));
        }
        ASSERT_EQ(ascending(sortedOrder(graph)), all) << "run " << run;
    }
}

TEST(NeighbourOrdering, oneNodeOfVeryManyNeighboursIsQuick)
{
    const int leaves = 20000;
    const TestGraph graph = starGraph(leaves);
    QElapsedTimer timer;
    timer.start();
    orderNeighbours(graph[0]);
    std::cout << leaves << " neighbours: " << timer.elapsed() << " ms" << std::endl;
    EXPECT_LT(timer.elapsed(), timeLimit(2000));
    EXPECT_EQ(graph[0]->neighbourCount(), leaves);
}
