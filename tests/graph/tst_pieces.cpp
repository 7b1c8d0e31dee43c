// SPDX-License-Identifier: MIT
#include "graph/graphwalk.h"
#include "graph/intersectionsearch.h"
#include "graph/nodestore.h"
#include "graph/pieces.h"
#include "tests/support/graphchecks.h"
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/orvanecurve.h>

#include <QSet>

#include <array>
#include <vector>

namespace {

class Pieces : public SceneCleaner
{
protected:
    Pieces() { NodeStore::instance().beginRun(); }

    static QList<IntersectionNode *> seedsOf(const QList<IntersectionNode *> &nodes)
    {
        QList<IntersectionNode *> seeds;
        findPieces(nodes, seeds);
        return seeds;
    }

    static QList<IntersectionNode *> reachedFrom(IntersectionNode *start)
    {
        QList<IntersectionNode *> reached;
        walkGraph(start, [&](IntersectionNode *node) { reached.append(node); });
        return reached;
    }
};

template <typename Nodes>
QList<IntersectionNode *> listOf(Nodes &nodes)
{
    QList<IntersectionNode *> list;
    for (IntersectionNode &node : nodes)
        list.append(&node);
    return list;
}

} // namespace

TEST_F(Pieces, twoCrossingPairsOfStrokesInSeparatePlacesGiveTwoSeedsOneFromEachPair)
{
    Sheet sheet;
    sheet.straight({1, 1.5f, 0}, {3, 1.5f, 0});
    sheet.straight({2, 1, 0}, {2, 2, 0});
    sheet.straight({7, 8.5f, 0}, {9, 8.5f, 0});
    sheet.straight({8, 8, 0}, {8, 9, 0});
    QList<IntersectionNode *> nodes;
    findIntersections(sheet.curves(), nodes, 0.05f, 0.0f, false);
    ASSERT_EQ(nodes.size(), 2);
    const QList<IntersectionNode *> seeds = seedsOf(nodes);
    ASSERT_EQ(seeds.size(), 2);
    EXPECT_TRUE(seeds[0]->hasCurve(sheet.curves()[0]));
    EXPECT_TRUE(seeds[1]->hasCurve(sheet.curves()[2]));
}

TEST_F(Pieces, aSingleIsolatedNodeIsASeedOfItsOwn)
{
    std::array<IntersectionNode, 4> nodes;
    nodes[0].addNeighbour(&nodes[1]);
    nodes[1].addNeighbour(&nodes[2]);
    nodes[2].addNeighbour(&nodes[0]);
    const QList<IntersectionNode *> seeds = seedsOf(listOf(nodes));
    EXPECT_EQ(seeds, (QList<IntersectionNode *>{&nodes[0], &nodes[3]}));
}

TEST_F(Pieces, runningThePassTwiceGivesTheSameNumberOfSeeds)
{
    Sheet sheet;
    sheet.grid(3, 3);
    sheet.figureEight({1, 1, 0}, 0.5f, 21);
    QList<IntersectionNode *> nodes;
    findIntersections(sheet.curves(), nodes, 0.05f, 0.0f, true);
    QList<IntersectionNode *> seeds;
    findPieces(nodes, seeds);
    const QList<IntersectionNode *> first = seeds;
    EXPECT_EQ(first.size(), 2);
    findPieces(nodes, seeds);
    EXPECT_EQ(seeds.size(), first.size());
    EXPECT_EQ(seeds, first) << "and the very same ones";
}

TEST_F(Pieces, theSeedIsTheFirstNodeOfTwoNeighboursSoThatALooseEndCostsNothing)
{
    std::array<IntersectionNode, 6> nodes;
    nodes[0].addNeighbour(&nodes[2]); // loose end first in the list
    nodes[2].addNeighbour(&nodes[3]);
    nodes[3].addNeighbour(&nodes[4]);
    nodes[4].addNeighbour(&nodes[2]);
    nodes[1].addNeighbour(&nodes[5]); // two loose ends: nothing better
    EXPECT_EQ(seedsOf(listOf(nodes)), (QList<IntersectionNode *>{&nodes[2], &nodes[1]}));
}

TEST_F(Pieces, anEmptyListClearsTheSeedsAndTheTimersAreLogged)
{
    IntersectionNode left;
    QList<IntersectionNode *> seeds = {&left};
    const LogCatcher log;
    findPieces({}, seeds);
    EXPECT_TRUE(seeds.isEmpty());
    EXPECT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().startsWith(QStringLiteral("Timers:")));
}

TEST_F(Pieces, aRandomGraphFallsIntoPiecesWithOneSeedEachThatCoverIt)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        std::vector<IntersectionNode> nodes(1 + random() % 60);
        const unsigned links = random() % 60;
        for (unsigned i = 0; i < links; ++i)
            nodes[random() % nodes.size()].addNeighbour(&nodes[random() % nodes.size()]);
        const QList<IntersectionNode *> list = listOf(nodes);
        ASSERT_TRUE(isSound(list));
        QSet<IntersectionNode *> covered;
        int lastFirst = -1;
        for (IntersectionNode *seed : seedsOf(list)) {
            const QList<IntersectionNode *> piece = reachedFrom(seed);
            int first = list.size();
            for (IntersectionNode *node : piece) {
                ASSERT_FALSE(covered.contains(node)) << "two seeds in one piece";
                covered.insert(node);
                first = qMin(first, int(list.indexOf(node)));
                const bool isEarlier = list.indexOf(node) < list.indexOf(seed);
                ASSERT_FALSE(isEarlier && node->neighbourCount() >= 2);
            }
            ASSERT_TRUE(seed->neighbourCount() >= 2 || seed == list[first]);
            ASSERT_GT(first, lastFirst) << "pieces are not in node-list order";
            lastFirst = first;
        }
        ASSERT_EQ(covered.size(), list.size());
    }
}

TEST_F(Pieces, aChainOfAMillionNodesIsOnePiece)
{
    std::vector<IntersectionNode> chain(1000000);
    for (std::size_t i = 0; i + 1 < chain.size(); ++i)
        chain[i].addNeighbour(&chain[i + 1]);
    EXPECT_EQ(seedsOf(listOf(chain)), QList<IntersectionNode *>{&chain[1]});
}
