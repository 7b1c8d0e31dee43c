// SPDX-License-Identifier: MIT
#include "graph/intersectionsearch.h"
#include "graph/nodestore.h"
#include "tests/support/graphchecks.h"
#include "tests/support/logcatcher.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <algorithm>

using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

class IntersectionSearchTest : public SceneCleaner
{
protected:
    IntersectionSearchTest() { NodeStore::instance().beginRun(); }

    QList<IntersectionNode *> search(const QList<OrvaneCurve *> &curves, float distance = 0.05f,
                                     float overrun = 0.0f, bool self = false)
    {
        QList<IntersectionNode *> nodes;
        findIntersections(curves, nodes, distance, overrun, self, &notes);
        EXPECT_TRUE(isSound(nodes));
        return nodes;
    }
    QList<IntersectionNode *> search(const Sheet &sheet, bool self = false)
    {
        return search(sheet.curves(), 0.05f, 0.0f, self);
    }

    SearchNotes notes;
};

const IntersectionNode *nodeAt(const QList<IntersectionNode *> &nodes, const Vector &place)
{
    for (const IntersectionNode *node : nodes) {
        if ((node->position() - place).Length() < 1e-4f)
            return node;
    }
    return nullptr;
}

int linksAlong(const IntersectionNode &node, OrvaneCurve *curve)
{
    return int(std::count_if(node.neighbours.cbegin(), node.neighbours.cend(),
                             [&](IntersectionNode *n) { return n->hasCurve(curve); }));
}

const QStringList PhasesWithSelf = {QStringLiteral("sample curves..."),
                                    QStringLiteral("self intersections..."),
                                    QStringLiteral("cross intersections...")};

bool isAscending(const QVector<qint64> &values)
{
    return std::is_sorted(values.cbegin(), values.cend());
}

} // namespace

TEST_F(IntersectionSearchTest, strokesCrossingLikeAnXGiveOneNodeWithBothCurvesAndTwoLinksOnEachSide)
{
    Sheet sheet;
    OrvaneCurve *rising = sheet.straight({2, 2, 0}, {7, 7, 0});
    OrvaneCurve *falling = sheet.straight({2, 7, 0}, {7, 2, 0});
    sheet.straight({3, 0.5f, 0}, {3, 9, 0}); // each crosses others beyond
    sheet.straight({6, 0.5f, 0}, {6, 9, 0});
    const QList<IntersectionNode *> nodes = search(sheet);
    EXPECT_EQ(nodes.size(), 5);
    const IntersectionNode *middle = nodeAt(nodes, {4.5f, 4.5f, 0});
    ASSERT_TRUE(middle);
    EXPECT_EQ(middle->curves, (QList<OrvaneCurve *>{rising, falling}));
    EXPECT_EQ(middle->neighbourCount(), 4);
    EXPECT_EQ(linksAlong(*middle, rising), 2);
    EXPECT_EQ(linksAlong(*middle, falling), 2);
    EXPECT_EQ(middle->normal, Vector(0, 0, 1));
}

TEST_F(IntersectionSearchTest, strokesFartherApartThanTheDistanceOnSomeAxisGiveNoNode)
{
    Sheet sheet;
    sheet.straight({2, 5, 0}, {8, 5, 0});
    sheet.straight({5, 2, 0.5f}, {5, 8, 0.5f});
    EXPECT_TRUE(search(sheet.curves(), 0.24f).isEmpty());
    EXPECT_EQ(search(sheet.curves(), 0.25f).size(), 1) << "both boxes grow, and touching ones meet";
    EXPECT_EQ(search(sheet.curves(), 0.26f).size(), 1);
}

TEST_F(IntersectionSearchTest, aCrossingExactlyThroughASamplePointIsNotFoundButNoted)
{
    Sheet sheet;
    sheet.straight({2, 5, 0}, {8, 5, 0}, 4); // samples at 2, 4, 6, 8
    sheet.straight({4, 2, 0}, {4, 7, 0});
    EXPECT_TRUE(search(sheet).isEmpty());
    ASSERT_EQ(notes.pointsOnCurves.size(), 1);
    EXPECT_EQ(notes.pointsOnCurves[0].curveA, 0);
    EXPECT_EQ(notes.pointsOnCurves[0].curveB, 1);
    EXPECT_EQ(notes.pointsOnCurves[0].place, Vector(4, 5, 0));
    sheet.straight({5, 2, 0}, {5, 7, 0});
    EXPECT_EQ(search(sheet).size(), 1);
    EXPECT_EQ(notes.pointsOnCurves.size(), 1);
}

TEST_F(IntersectionSearchTest, aClosedCurveWithThreeCrossingsGivesATriangleOfLinks)
{
    Sheet sheet;
    OrvaneCurve *circle = sheet.circle({5, 5, 0}, 2.0f, 24);
    for (float angle : {0.5f, 2.5f, 4.5f}) {
        const Vector out(std::cos(angle), std::sin(angle), 0.0f);
        sheet.straight(Vector(5, 5, 0) + out, Vector(5, 5, 0) + out * 3.0f);
    }
    const QList<IntersectionNode *> nodes = search(sheet);
    ASSERT_EQ(nodes.size(), 3);
    for (const IntersectionNode *node : nodes) {
        EXPECT_EQ(node->neighbourCount(), 2);
        EXPECT_TRUE(node->hasCurve(circle));
    }
    EXPECT_TRUE(nodes[2]->hasNeighbour(nodes[0])) << "last to first";
}

TEST_F(IntersectionSearchTest, withoutSelfIntersectionsALoopingStrokeGivesNoNodeAndNoSuchProgress)
{
    RecordingInterface interface;
    Sheet sheet;
    OrvaneCurve *eight = sheet.figureEight({5, 5, 0}, 3.0f, 41);
    EXPECT_TRUE(search(sheet).isEmpty());
    EXPECT_EQ(interface.phaseTexts(), (QStringList{PhasesWithSelf[0], PhasesWithSelf[2]}));
    interface.phases.clear();
    const QList<IntersectionNode *> nodes = search(sheet, true);
    ASSERT_EQ(nodes.size(), 1);
    EXPECT_EQ(nodes[0]->curves, QList<OrvaneCurve *>{eight});
    EXPECT_EQ(nodes[0]->neighbourCount(), 0) << "both its places on the curve are itself";
    EXPECT_EQ(interface.phaseTexts(), PhasesWithSelf);
}

TEST_F(IntersectionSearchTest, progressNamesEachPhaseCountsTheCurvesAndTheSquareOfTheSamples)
{
    RecordingInterface interface;
    Sheet sheet;
    sheet.straight({1, 1, 0}, {4, 4, 0}, 10);
    sheet.stroke({});
    sheet.straight({1, 4, 0}, {4, 1, 0}, 7);
    QList<OrvaneCurve *> curves = sheet.curves();
    curves.insert(1, nullptr);
    search(curves, 0.05f, 0.0f, true);
    ASSERT_EQ(interface.phaseTexts(), PhasesWithSelf);
    EXPECT_EQ(interface.strayCalls, 0);
    EXPECT_EQ(interface.phases[0].maximum, 4);
    EXPECT_EQ(interface.phases[0].values, (QVector<qint64>{0, 2, 3})) << "none for the null curve";
    EXPECT_EQ(interface.phases[1].maximum, 17 * 17);
    EXPECT_EQ(interface.phases[2].maximum, 4);
    EXPECT_EQ(interface.phases[2].values, (QVector<qint64>{0, 1, 2, 3}));
    for (const RecordingInterface::Phase &phase : interface.phases) {
        EXPECT_EQ(phase.step, 1.0);
        EXPECT_EQ(phase.flags, 0);
        EXPECT_TRUE(phase.ended);
        EXPECT_FALSE(phase.values.isEmpty());
        EXPECT_TRUE(isAscending(phase.values));
        EXPECT_LE(phase.values.last(), phase.maximum);
    }
    EXPECT_TRUE(interface.messages.isEmpty());
}

TEST_F(IntersectionSearchTest, theSquareOfTheSamplesMayLeave32Bits)
{
    RecordingInterface interface;
    Sheet sheet;
    for (int i = 0; i < 140; ++i) {
        const float y = 0.5f + 0.06f * float(i);
        sheet.straight({0.5f, y, 0}, {9.5f, y, 0}, 500);
    }
    EXPECT_TRUE(search(sheet.curves(), 0.001f, 0.0f, true).isEmpty());
    ASSERT_EQ(interface.phases.size(), 3);
    const RecordingInterface::Phase &self = interface.phases[1];
    EXPECT_EQ(self.maximum, qint64(70000) * 70000);
    EXPECT_TRUE(isAscending(self.values));
    EXPECT_GT(self.values.last(), self.maximum * 9 / 10);
    EXPECT_LE(self.values.last(), self.maximum);
}

TEST_F(IntersectionSearchTest, anEmptyListShowsAndLogsNothing)
{
    RecordingInterface interface;
    const LogCatcher log;
    EXPECT_TRUE(search(QList<OrvaneCurve *>()).isEmpty());
    EXPECT_TRUE(interface.phases.isEmpty());
    EXPECT_EQ(log.count(), 0);
}

TEST_F(IntersectionSearchTest, nodesAreAppendedAndTheTimersLoggedOnce)
{
    Sheet sheet;
    sheet.straight({2, 5, 0}, {8, 5, 0});
    sheet.straight({5.5f, 2, 0}, {5.5f, 8, 0});
    IntersectionNode there;
    QList<IntersectionNode *> nodes = {&there};
    const LogCatcher log;
    findIntersections(sheet.curves(), nodes, 0.05f, 0.0f, false);
    ASSERT_EQ(nodes.size(), 2);
    EXPECT_EQ(nodes[0], &there);
    EXPECT_EQ(there.neighbourCount(), 0);
    EXPECT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().contains(QStringLiteral("cross intersections")));
}

TEST_F(IntersectionSearchTest, overrunLetsAStrokeThatStopsShortReachItsNeighbour)
{
    Sheet sheet;
    sheet.straight({5, 2, 0}, {5, 8, 0}, 4);
    sheet.straight({1, 4.5f, 0}, {4.5f, 4.5f, 0}, 2); // 0.5 short, end segment 3.5 long
    EXPECT_TRUE(search(sheet.curves(), 0.01f, 0.14f).isEmpty());
    EXPECT_EQ(search(sheet.curves(), 0.01f, 0.15f).size(), 1);
}

TEST_F(IntersectionSearchTest, aLoopCrossesItsOwnClosingStretchButNotItsSeam)
{
    Sheet sheet;
    // The closing stretch runs from (2, 5) back to (5, 8).
    sheet.loop({{5, 8, 0}, {8, 5, 0}, {5, 2, 0}, {2, 5, 0}});
    EXPECT_TRUE(search(sheet, true).isEmpty());
    EXPECT_TRUE(notes.pointsOnCurves.isEmpty());
    sheet.straight({3, 5, 0}, {3, 7, 0});
    sheet.straight({7, 5, 0}, {7, 7, 0});
    const QList<IntersectionNode *> nodes = search(sheet, true);
    ASSERT_EQ(nodes.size(), 2);
    EXPECT_TRUE(nodeAt(nodes, {3, 6, 0}));
}

TEST_F(IntersectionSearchTest, crossingNormalSumsTheNormalsOfTheValidFacesOnly)
{
    const Sheet sheet;
    const orvane::CurvePoint up = sheet.point({5, 5, 0});
    const orvane::CurvePoint loose{Vector(1, 1, 0)};
    const orvane::CurvePoint beyond{
        orvane::SurfacePoint(*sheet.mesh(), sheet.mesh()->FaceCount(), 0, 0)};
    EXPECT_EQ(crossingNormal(up, up, up, up), Vector(0, 0, 1));
    EXPECT_EQ(crossingNormal(loose, up, beyond, loose), Vector(0, 0, 1));
    EXPECT_EQ(crossingNormal(loose, loose, beyond, loose), Vector());
    const Sheet below(4, orvane::Matrix::Rotation({1, 0, 0}, 3.14159265f));
    const orvane::CurvePoint down = below.point({1, 1, 0});
    const Vector cancelled = crossingNormal(up, down, up, down);
    EXPECT_LT(cancelled.Length(), 1e-5f) << "left as summed where it is about zero";
}

TEST_F(IntersectionSearchTest, linksFollowTheCurvesInParameterOrder)
{
    Sheet sheet;
    sheet.grid(3, 2);
    const QList<IntersectionNode *> nodes = search(sheet);
    ASSERT_EQ(nodes.size(), 12);
    int links = 0;
    for (const IntersectionNode *node : nodes) {
        links += node->neighbourCount();
        for (const IntersectionNode *neighbour : qAsConst(node->neighbours))
            EXPECT_NEAR((node->position() - neighbour->position()).Length(), 1.0f, 1e-5f);
    }
    EXPECT_EQ(links, 2 * (3 * 3 + 4 * 2));
}
