// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"
#include "tests/operation/operationscene.h"
#include "tests/operation/operationstate.h"
#include "tests/support/logcatcher.h"
#include "tests/support/recordinginterface.h"
#include "tests/support/shapes.h"

#include <orvane/base/log.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>
#include <vector>

using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

class GenerateMeshes : public OperationScene
{};

// A ring of so many lobes.
void drawFlower(Sheet &sheet, const Vector &center, int lobes)
{
    QVector<Vector> places;
    const int points = 16 * lobes + 1;
    for (int i = 0; i < points; ++i) {
        const float angle = 6.2831853f * (float(i) + 0.3f) / float(points);
        const float radius = 1.5f + 0.3f * std::cos(float(lobes) * angle);
        places.append(center + Vector(std::cos(angle), std::sin(angle), 0.0f) * radius);
    }
    sheet.loop(places);
}

// Two closed curves that cross each other four times: a ring of four nodes.
void drawCrossingPair(Sheet &sheet, const Vector &center)
{
    sheet.circle(center, 1.5f, 41);
    drawFlower(sheet, center, 2);
}

QVector<Vector> worldPositions(const orvane::Geometry *geometry)
{
    QVector<Vector> positions;
    const orvane::SubdivisionLevel *level = geometry->CurrentLevel();
    for (int v = 0; v < level->VertexCount(); ++v)
        positions.append(level->WorldVertexPosition(v));
    return positions;
}

} // namespace

TEST_F(GenerateMeshes, anOperationWhoseCurveListIsEmptyBuildsNothingAndReturnsFalse)
{
    RecordingInterface interface;
    Sheet sheet;
    const auto operation = operationOn({});
    EXPECT_FALSE(operation->ExecuteAndInvert());
    EXPECT_TRUE(operation->AddGeometry().isEmpty());
    EXPECT_TRUE(operation->Subgraphs().isEmpty());
    EXPECT_EQ(sceneNodes().size(), 1);
    EXPECT_TRUE(interface.phases.isEmpty());
    EXPECT_EQ(lastRunReport().averageEdgeLength, 1.0);
}

TEST_F(GenerateMeshes, aPairOfCurvesThatCrossesFourTimesIsOneComponentAndTwoPairsAreTwoInOrder)
{
    Sheet sheet(20);
    drawCrossingPair(sheet, {4, 4, 0});
    auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(lastRunReport().crossings, 4);
    EXPECT_EQ(operation->Subgraphs().size(), 1);
    ASSERT_TRUE(operation->ExecuteAndInvert());

    drawCrossingPair(sheet, {14, 14, 0});
    operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(lastRunReport().crossings, 8);
    ASSERT_EQ(operation->Subgraphs().size(), 2);
    ASSERT_EQ(operation->AddGeometry().size(), 2);
    for (int i = 0; i < 2; ++i) {
        const IntersectionNode *start = operation->Subgraphs()[i];
        EXPECT_TRUE(start->hasCurve(sheet.curves()[2 * i]));
        EXPECT_EQ(worldPositions(operation->AddGeometry()[i])[start->vertexIndex],
                  start->position());
    }
    EXPECT_EQ(dialogs.count(), 0);
}

TEST_F(GenerateMeshes, eachComponentIsSortedAndBuiltBeforeTheNextIsTouched)
{
    Sheet sheet(20);
    for (const Vector &center : {Vector(4, 4, 0), Vector(14, 14, 0)}) {
        sheet.circle(center, 1.5f, 41);
        drawFlower(sheet, center, 6); // twelve corners: split, and so logged while it is built
        sheet.straight(center - Vector(2.5f, 0.1f, 0), center - Vector(0.2f, 0.1f, 0));
        sheet.straight(center - Vector(2.5f, 0.2f, 0), center - Vector(0.2f, 0.2f, 0));
    }
    ManualRetopoOperation operation(sheet.curves(), 40, 0.0f, 0.05f, 0.0f, false);
    QVector<int> builtWhenLogged; // how many components were numbered at each logged corner
    QList<QList<IntersectionNode *>> secondWhenLogged;
    orvane::setLogSink([&](const QString &text) {
        if (!text.contains(QStringLiteral("Adding point")))
            return;
        const QList<IntersectionNode *> &starts = operation.Subgraphs();
        int built = 0;
        while (built < starts.size() && starts[built]->vertexIndex >= 0)
            ++built;
        builtWhenLogged.append(built);
        secondWhenLogged.append(starts.last()->neighbours);
    });
    ASSERT_TRUE(operation.ExecuteAndInvert());
    orvane::setLogSink({});
    ASSERT_EQ(operation.Subgraphs().size(), 2);
    ASSERT_FALSE(builtWhenLogged.isEmpty());
    EXPECT_EQ(builtWhenLogged.first(), 1) << "the second is numbered only after the first is built";
    EXPECT_EQ(builtWhenLogged.last(), 2);
    EXPECT_NE(secondWhenLogged.first(), secondWhenLogged.last()) << "and only then sorted";
}

TEST_F(GenerateMeshes, theOverrunReachesTheSearchUnscaledWhateverTheAverageEdgeLength)
{
    for (float cell : {1.0f, 0.25f, 4.0f}) {
        Sheet sheet(int(16.0f / cell), orvane::Matrix::Scaling({cell, cell, cell}));
        const float s = 1.0f / cell; // the same strokes in the world on faces of any size
        sheet.straight(Vector(2, 4.1f, 0) * s, Vector(14, 4.1f, 0) * s);
        sheet.straight(Vector(5, 4.5f, 0) * s, Vector(5, 8.5f, 0) * s); // 0.4 short, 4 long
        const auto tooShort = operationOn(sheet.curves(), 0.099f);
        tooShort->ExecuteAndInvert();
        EXPECT_NEAR(lastRunReport().averageEdgeLength, double(cell), 1e-6);
        EXPECT_EQ(lastRunReport().crossings, 0) << cell;
        const auto longEnough = operationOn(sheet.curves(), 0.101f);
        longEnough->ExecuteAndInvert();
        EXPECT_EQ(lastRunReport().crossings, 1) << cell;
        orvane::Kernel()->Scene()->Clear();
    }
}

TEST_F(GenerateMeshes, mergeDistanceAndToleranceAreFractionsOfTheAverageEdgeLength)
{
    for (float cell : {1.0f, 4.0f}) {
        Sheet sheet(16, orvane::Matrix::Scaling({cell, cell, cell}));
        sheet.straight({2, 5, 0}, {14, 5, 0});
        sheet.straight({4.2f, 2, 0}, {4.2f, 8, 0});
        sheet.straight({4.7f, 2, 0}, {4.7f, 8, 0});       // half a cell on
        sheet.straight({8.2f, 2, 0.5f}, {8.2f, 8, 0.5f}); // half a cell above
        const auto run = [&](float merge, float tolerance) {
            ManualRetopoOperation operation(sheet.curves(), 5, merge, tolerance, 0.0f, false);
            operation.ExecuteAndInvert();
            return lastRunReport();
        };
        EXPECT_EQ(run(0.49f, 0.24f).crossings, 2) << cell;
        EXPECT_EQ(run(0.49f, 0.26f).crossings, 3) << cell;
        EXPECT_EQ(run(0.49f, 0.24f).merged, 0) << cell;
        EXPECT_EQ(run(0.51f, 0.24f).merged, 1) << cell;
        orvane::Kernel()->Scene()->Clear();
    }
}

TEST_F(GenerateMeshes, itShowsTheSearchPhasesOnlyAndLogsTheTimersAfterSearchMergeAndPieces)
{
    RecordingInterface interface;
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    ManualRetopoOperation operation(sheet.curves(), 5, 0.1f, 0.05f, 0.0f, true);
    const LogCatcher log;
    ASSERT_TRUE(operation.ExecuteAndInvert());
    EXPECT_EQ(interface.phaseTexts(), (QStringList{QStringLiteral("sample curves..."),
                                                   QStringLiteral("self intersections..."),
                                                   QStringLiteral("cross intersections...")}));
    EXPECT_TRUE(interface.messages.isEmpty());
    EXPECT_EQ(log.texts().filter(QStringLiteral("Timers:")).size(), 3);
}

TEST_F(GenerateMeshes, theSameSceneTwiceGivesTheSameBytes)
{
    QVector<QByteArray> results;
    std::vector<std::unique_ptr<IntersectionNode>> kept;
    for (int round = 0; round < 2; ++round) {
        orvane::Kernel()->Scene()->Clear();
        Sheet sheet(20);
        sheet.grid(7, 7, 1.5f);
        sheet.circle({10, 10, 0}, 4.2f, 60);
        sheet.wavy({1, 3, 0}, {19, 16, 0}, 80, 1.2f, 3.0f);
        sheet.figureEight({10, 10, 0}, 3.0f, 71);
        drawCell(sheet, {0.5f, 17.5f, 0}, 1.0f);
        ManualRetopoOperation operation(sheet.curves(), 6, 0.2f, 0.05f, 0.1f, true);
        ASSERT_TRUE(operation.ExecuteAndInvert());
        EXPECT_EQ(operation.AddGeometry().size(), 2);
        QByteArray bytes;
        for (orvane::Geometry *geometry : operation.AddGeometry())
            bytes += bytesOf(geometry);
        results.append(bytes);
        for (int i = 0; i < 999; ++i) // takes other addresses, and hash orders, the next time
            kept.push_back(std::make_unique<IntersectionNode>());
    }
    EXPECT_GT(results[0].size(), 5000);
    EXPECT_EQ(results[0], results[1]);
}

TEST_F(GenerateMeshes, nullCurvesCurvesOfOnePointAndCurvesBesideTheMeshCountForNothing)
{
    Sheet sheet;
    const QList<OrvaneCurve *> cell = drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto plain = operationOn(cell);
    ASSERT_TRUE(plain->ExecuteAndInvert());
    const QByteArray expected = bytesOf(plain->AddGeometry().first());
    ASSERT_TRUE(plain->ExecuteAndInvert());

    QList<OrvaneCurve *> curves = cell;
    curves.insert(2, nullptr);
    curves.prepend(sheet.stroke({{3, 3, 0}}));
    curves.append(sheet.straight({-3, -3, 0}, {-1, 20, 0}));
    curves.append(sheet.stroke({}));
    const auto operation = operationOn(curves);
    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(bytesOf(operation->AddGeometry().first()), expected);
    EXPECT_EQ(lastRunReport().curves, 7);
}

TEST_F(GenerateMeshes, aMeshOverATurnedScaledSourceTakesItsPlacementAndLiesOnIt)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 20; ++round) {
        const orvane::Matrix placement = randomPlacement(random);
        Sheet sheet(10, placement);
        sheet.grid(3, 3);
        const auto operation = operationOn(sheet.curves());
        ASSERT_TRUE(operation->ExecuteAndInvert());
        const orvane::Geometry *made = operation->AddGeometry().first();
        EXPECT_TRUE(made->Placement()->WorldMatrix() == placement);
        const QVector<Vector> positions = worldPositions(made);
        ASSERT_EQ(positions.size(), 16);
        for (const Vector &position : positions) {
            const Vector local = sheet.geometry()->Placement()->ToLocal(position);
            EXPECT_NEAR(local.z, 0.0f, 1e-4f);
            EXPECT_NEAR(local.x - 0.5f, std::round(local.x - 0.5f), 1e-3f);
            EXPECT_NEAR(local.y - 0.5f, std::round(local.y - 0.5f), 1e-3f);
        }
        orvane::Kernel()->Scene()->Clear();
    }
}
