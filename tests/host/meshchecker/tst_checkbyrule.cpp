// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/plainchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <iostream>

using orvane::MeshChecker;
using orvane::Vector;

namespace {

const int Rounds = 3000;

int below(std::mt19937 &random, int limit)
{
    return int(random() % unsigned(limit));
}

QVector<Vector> randomPositions(std::mt19937 &random, int count)
{
    const int size = 2 + below(random, 40);
    QVector<Vector> positions;
    for (int i = 0; i < count; ++i)
        positions.append(
            {float(below(random, size)), float(below(random, size)), float(below(random, size))});
    return positions;
}

// Corners may repeat, in a row or not; most polygons are small.
QVector<QVector<int>> randomPolygons(std::mt19937 &random, int vertices)
{
    QVector<QVector<int>> polygons(1 + below(random, 4 * vertices));
    for (QVector<int> &polygon : polygons) {
        polygon.resize(below(random, 10) == 0 ? 3 + below(random, 18) : 3 + below(random, 3));
        for (int &corner : polygon)
            corner = below(random, vertices);
    }
    return polygons;
}

} // namespace

TEST(CheckByRule, randomMeshesHaveTheFaultsThatTheRulesSay)
{
    std::mt19937 random(testSeed());
    std::map<int, int> seen;
    for (int round = 0; round < Rounds; ++round) {
        const int vertices = 3 + below(random, 22);
        const QVector<Vector> positions = randomPositions(random, vertices);
        const QVector<QVector<int>> polygons = randomPolygons(random, vertices);
        const MeshPointer mesh = polygonMesh(positions, polygons);
        std::map<int, QStringList> expected = PlainChecker(positions, polygons).faults();
        int bits = 0;
        for (const auto &[bit, places] : expected) {
            bits |= bit;
            ++seen[bit];
            ASSERT_EQ(placesOf(bit, *mesh), places) << "round " << round << ", bit " << bit;
        }
        ASSERT_EQ(MeshChecker().Validate(mesh.get()), bits) << "round " << round;
    }
    for (const auto &[bit, rounds] : seen) {
        std::cout << "bit " << bit << " in " << rounds << " of " << Rounds << " meshes\n";
        EXPECT_GT(rounds, 20) << "bit " << bit << " was hardly tried";
    }
    EXPECT_EQ(seen.size(), 10u);
}
