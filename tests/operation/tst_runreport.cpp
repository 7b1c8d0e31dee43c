// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"
#include "tests/operation/operationscene.h"
#include "tests/support/recordinginterface.h"

#include <orvane/kernel/kernel.h>

#include <cmath>

using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

class RunReportTest : public OperationScene
{
protected:
    using OperationScene::OperationScene;

    static const RunReport &run(const QList<OrvaneCurve *> &curves, int maximumEdges = 5)
    {
        ManualRetopoOperation operation(curves, maximumEdges, 0.1f, 0.05f, 0.0f, false);
        operation.ExecuteAndInvert();
        return lastRunReport();
    }
};

class RefusedMesh : public RunReportTest
{
protected:
    RefusedMesh() : RunReportTest(QStringLiteral("close")) {}
};

// Nine strokes through one place inside a circle: a vertex of 18 edges.
void drawWheel(Sheet &sheet)
{
    const Vector center(5, 5, 0);
    sheet.circle(center, 3.0f, 90);
    for (int i = 0; i < 9; ++i) {
        const float angle = 0.05f + 3.14159265f * float(i) / 9.0f;
        const Vector out = Vector(std::cos(angle), std::sin(angle), 0.0f) * 3.5f;
        sheet.straight(center - out, center + out * 1.01f);
    }
}

} // namespace

TEST_F(RunReportTest, theUserIsToldInOneLineAndUndoTakesItBack)
{
    RecordingInterface interface;
    Sheet sheet;
    sheet.grid(3, 2);
    ManualRetopoOperation operation(sheet.curves(), 5, 0.1f, 0.05f, 0.0f, false);
    operation.ExecuteAndInvert();
    ASSERT_EQ(interface.reports.size(), 1);
    EXPECT_TRUE(interface.reports[0].startsWith(QLatin1String("Crossings: 12. Faces: 6. Time: ")))
        << qPrintable(interface.reports[0]);
    operation.ExecuteAndInvert();
    EXPECT_EQ(interface.reports.value(1), QString());
    EXPECT_EQ(interface.reports.size(), 2);
}

TEST_F(RunReportTest, theLineNamesHoles)
{
    RecordingInterface interface;
    Sheet sheet;
    sheet.grid(3, 2);
    // Two more vertices on the side of a cell: it has six now.
    sheet.straight({4.8f, 3.31f, 0}, {4.8f, 4.42f, 0}, 2);
    sheet.straight({5.2f, 3.31f, 0}, {5.2f, 4.42f, 0}, 2);
    run(sheet.curves());
    ASSERT_EQ(interface.reports.size(), 1);
    EXPECT_TRUE(
        interface.reports[0].startsWith(QLatin1String("Crossings: 14. Faces: 5. Holes: 1. Time: ")))
        << qPrintable(interface.reports[0]);
}

TEST_F(RunReportTest, aRunIsCountedFromCurvesToFaces)
{
    Sheet sheet;
    sheet.grid(3, 2);
    sheet.straight({3.45f, 2, 0}, {3.45f, 7, 0}, 2); // right beside a stroke of the grid
    QList<OrvaneCurve *> curves = sheet.curves();
    curves.append(nullptr);
    const RunReport &report = run(curves);
    EXPECT_EQ(report.curves, 8);
    EXPECT_EQ(report.averageEdgeLength, 1.0);
    EXPECT_EQ(report.maximumEdges, 5);
    EXPECT_EQ(report.crossings, 15);
    EXPECT_EQ(report.merged, 3);
    ASSERT_EQ(report.pieces.size(), 1);
    EXPECT_EQ(report.pieces[0].outcome, PieceReport::Built);
    EXPECT_EQ(report.pieces[0].nodes, 12);
    EXPECT_EQ(report.pieces[0].facesByCorners, (QVector<int>{0, 0, 0, 0, 6}));
    EXPECT_EQ(report.pieces[0].holes.total(), 0);
    EXPECT_EQ(report.pieces[0].inFaceOfPiece, -1);
    EXPECT_TRUE(report.failure.isEmpty());
    EXPECT_TRUE(report.pointsOnCurves.isEmpty());
}

TEST_F(RunReportTest, everyStageTellsItsSeconds)
{
    Sheet sheet;
    sheet.grid(5, 5);
    const StageSeconds seconds = run(sheet.curves()).seconds;
    for (double stage : {seconds.measure, seconds.sample, seconds.cross, seconds.link,
                         seconds.merge, seconds.pieces, seconds.order, seconds.build}) {
        EXPECT_GT(stage, 0.0);
        EXPECT_LT(stage, 10.0);
    }
    EXPECT_EQ(seconds.self, 0.0) << "it was skipped";
}

TEST_F(RunReportTest, withoutCurvesTheReasonIsThatThereAreNone)
{
    EXPECT_EQ(run({}).failure, QStringLiteral("there are no curves"));
    EXPECT_EQ(run({nullptr, nullptr}).failure, QStringLiteral("there are no curves"));
}

TEST_F(RunReportTest, curvesThatDoNotCrossAreTheReason)
{
    Sheet sheet;
    sheet.straight({1, 1, 0}, {4, 1, 0});
    sheet.straight({1, 2, 0}, {4, 2, 0});
    EXPECT_EQ(run(sheet.curves()).failure, QStringLiteral("no two curves cross"));
    EXPECT_TRUE(lastRunReport().pieces.isEmpty());
}

TEST_F(RunReportTest, cellsOverTheFaceLimitAreTheReason)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const RunReport &report = run(sheet.curves(), 3);
    EXPECT_EQ(report.failure, QStringLiteral("no closed cell of the curves has at most 3 edges"));
    ASSERT_EQ(report.pieces.size(), 1);
    EXPECT_EQ(report.pieces[0].outcome, PieceReport::NoFace);
    EXPECT_EQ(report.pieces[0].holes.overLimit, 1);
}

TEST_F(RunReportTest, looseEndsAreTheReason)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 4.0f);
    // Into the cell from two of its corners, each ending in a crossing of its own.
    sheet.stroke({{1.9f, 1.95f, 0}, {3, 3.05f, 0}});
    sheet.stroke({{6.1f, 6.05f, 0}, {5, 4.95f, 0}});
    sheet.straight({2.5f, 3, 0}, {3, 2.5f, 0});
    sheet.straight({5, 5.5f, 0}, {5.5f, 5, 0});
    ManualRetopoOperation operation(sheet.curves(), 5, 0.3f, 0.05f, 0.0f, false);
    EXPECT_FALSE(operation.ExecuteAndInvert());
    EXPECT_EQ(lastRunReport().failure,
              QStringLiteral("loose ends keep every cell of the curves from closing"));
    ASSERT_EQ(lastRunReport().pieces.size(), 1);
    EXPECT_EQ(lastRunReport().pieces[0].holes.dangling, 1);
}

TEST_F(RunReportTest, curvesThatCrossWithoutACellAreTheReason)
{
    Sheet sheet;
    sheet.straight({2, 3.5f, 0}, {5, 3.5f, 0});
    sheet.straight({3.5f, 2, 0}, {3.5f, 5, 0});
    EXPECT_EQ(run(sheet.curves()).failure, QStringLiteral("the curves cross, but close no cell"));
    EXPECT_EQ(lastRunReport().pieces[0].nodes, 1);
    EXPECT_EQ(lastRunReport().pieces[0].place, Vector(3.5f, 3.5f, 0));
}

TEST_F(RefusedMesh, aMeshDiscardedForItsFaultsIsTheReason)
{
    Sheet sheet;
    drawWheel(sheet);
    const RunReport &report = run(sheet.curves());
    EXPECT_EQ(dialogs.count(), 1);
    EXPECT_EQ(report.failure, QStringLiteral("every mesh was discarded for its faults"));
    ASSERT_EQ(report.pieces.size(), 1);
    EXPECT_EQ(report.pieces[0].outcome, PieceReport::Discarded);
    EXPECT_EQ(sceneNodes().size(), 1 + sheet.curves().size());
}

TEST_F(RefusedMesh, anotherMeshOfTheRunIsKept)
{
    Sheet sheet(20);
    drawWheel(sheet);
    drawCell(sheet, {12, 12, 0}, 2.0f);
    const RunReport &report = run(sheet.curves());
    EXPECT_TRUE(report.failure.isEmpty());
    ASSERT_EQ(report.pieces.size(), 2);
    EXPECT_EQ(report.pieces[0].outcome, PieceReport::Discarded);
    EXPECT_EQ(report.pieces[1].outcome, PieceReport::Built);
}

TEST_F(RunReportTest, aMeshWithFaultsThatIsAcceptedIsNoFailure)
{
    Sheet sheet;
    drawWheel(sheet);
    EXPECT_TRUE(run(sheet.curves()).failure.isEmpty());
    EXPECT_EQ(dialogs.count(), 1);
    EXPECT_EQ(lastRunReport().pieces[0].facesByCorners, (QVector<int>{0, 0, 0, 18}));
}

TEST_F(RunReportTest, theReportOfTheLatestRunReplacesTheOneBefore)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const RunReport before = run(sheet.curves());
    run({});
    EXPECT_TRUE(lastRunReport().pieces.isEmpty());
    EXPECT_EQ(lastRunReport().crossings, 0);
    EXPECT_EQ(before.crossings, 4) << "a report is a value";
}

TEST_F(RunReportTest, pointsOnCurvesAreNamed)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    sheet.straight({5, 6, 0}, {9, 6, 0}, 3);
    sheet.straight({7, 5, 0}, {7, 9, 0});
    const RunReport &report = run(sheet.curves());
    ASSERT_EQ(report.pointsOnCurves.size(), 1);
    EXPECT_EQ(report.pointsOnCurves[0].curveA, 4);
    EXPECT_EQ(report.pointsOnCurves[0].curveB, 5);
    EXPECT_EQ(report.pointsOnCurves[0].place, Vector(7, 6, 0));
}

TEST_F(RunReportTest, theHostTellsTheReasonWhenTheUserAskedForTheMesh)
{
    RecordingInterface interface;
    Sheet sheet;
    sheet.straight({1, 1, 0}, {4, 1, 0});
    EXPECT_FALSE(orvane::Kernel()->DoOperation(operationOn(sheet.curves()).get(), true, false));
    ASSERT_EQ(interface.messages.size(), 1);
    EXPECT_EQ(interface.messages[0].text, QStringLiteral("Nothing was made: no two curves cross"));
}
