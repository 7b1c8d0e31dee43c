// SPDX-License-Identifier: MIT
#include "plugin/quillmesh.h"
#include "tests/plugin/toolscene.h"
#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using orvane::OrvaneCurve;

namespace {

const double SixDigits = 0.51e-5; // greatest relative error of six significant digits
const float CellSide = 20.0f;     // wider than any merge distance below
const int UsualCommands = 100;    // in a short run
const char *const Fresh = "manualretopo 5 0.3 0.05 35 0";

// What happens when the kernel is given a command. One large cell on a fine sheet: a mesh is made
// with merge distances of up to twenty edge lengths.
class CommandReplay : public ToolScene
{
protected:
    CommandReplay() { cell = drawCell(sheet, {14, 14, 0}, CellSide); }

    void replayAndExpect(const char *command, int edges, float merge, float tolerance,
                         float overrun, bool selfIntersections)
    {
        SCOPED_TRACE(command);
        const int steps = undoSteps();
        replay(QLatin1String(command));
        ASSERT_EQ(undoSteps(), steps + 1);
        const OperationState operation = lastOperation();
        EXPECT_EQ(operation.maxEdges, edges);
        EXPECT_EQ(operation.mergeDistance, merge);
        EXPECT_EQ(operation.intersectionTolerance, tolerance);
        EXPECT_EQ(operation.overrunTolerance, overrun);
        EXPECT_EQ(operation.useSelfIntersections, selfIntersections);
    }

    // One operation for the interactive request and its recorded line.
    void createAndReplay()
    {
        createMesh();
        const OperationState asked = lastOperation();
        const QString command = lastCommand();
        SCOPED_TRACE(command.toStdString());
        replay(command);
        ASSERT_EQ(undoSteps(), 2);
        const OperationState replayed = lastOperation();
        ASSERT_EQ(replayed.maxEdges, asked.maxEdges);
        ASSERT_EQ(replayed.useSelfIntersections, asked.useSelfIntersections);
        expectSixDigits(replayed.mergeDistance, asked.mergeDistance);
        expectSixDigits(replayed.intersectionTolerance, asked.intersectionTolerance);
        expectSixDigits(replayed.overrunTolerance, asked.overrunTolerance);
    }

    static void expectSixDigits(float found, float expected)
    {
        EXPECT_NEAR(double(found), double(expected), std::abs(double(expected)) * SixDigits);
    }

    // A text with digits enough that some are lost.
    void typeRandom(const char *field, std::mt19937 &random, float low, float high)
    {
        type(field, QString::number(double(randomBetween(random, low, high)), 'g', 9));
    }

    static QVector<orvane::Node *> allCurves(const Sheet &sheet)
    {
        QVector<orvane::Node *> all;
        for (OrvaneCurve *curve : sheet.curves())
            all.append(curve);
        return all;
    }

    Sheet sheet{48};
    QList<OrvaneCurve *> cell;
};

} // namespace

TEST_F(CommandReplay, theTextOfAFreshDialogReplaysToTheValuesOfTheRequest)
{
    createMesh();
    ASSERT_EQ(lastCommand(), QLatin1String(Fresh));
    const OperationState asked = lastOperation();
    replayAndExpect(Fresh, 5, 0.3f, 0.05f, 0.35f, false);
    const OperationState replayed = lastOperation();
    EXPECT_EQ(replayed.mergeDistance, asked.mergeDistance);
    EXPECT_EQ(replayed.intersectionTolerance, asked.intersectionTolerance);
    EXPECT_EQ(replayed.overrunTolerance, asked.overrunTolerance);
}

TEST_F(CommandReplay, theKeywordAloneReplaysWith5And10And5And035AndTrue)
{
    replayAndExpect("manualretopo", 5, 10.0f, 5.0f, 0.35f, true);
}

TEST_F(CommandReplay, theKeywordAnd7ReplaysWith7And10And5And035AndTrue)
{
    replayAndExpect("manualretopo 7", 7, 10.0f, 5.0f, 0.35f, true);
}

TEST_F(CommandReplay, twoBlanksAnd6LeaveTheFirstFieldEmptyAndTheSecondReads6)
{
    replayAndExpect("manualretopo  6", 5, 6.0f, 5.0f, 0.35f, true);
}

TEST_F(CommandReplay, aKeywordThatDiffersOnlyInCaseIsIgnored)
{
    replay(QStringLiteral("Manualretopo 5 0.3 0.05 35 0"));
    replay(QStringLiteral("MANUALRETOPO"));
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_TRUE(interface.phases.isEmpty()) << "nothing ran";
    EXPECT_TRUE(interface.messages.isEmpty());
}

TEST_F(CommandReplay, aLetterInTheFirstFieldGivesMaximumEdges0AndSoNoMesh)
{
    replay(QStringLiteral("manualretopo x 0.3 0.05 35 0"));
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_FALSE(interface.phases.isEmpty()) << "it ran";
    EXPECT_TRUE(interface.messages.isEmpty()) << "the replay itself says nothing";
    EXPECT_EQ(interface.busyTurns, 0);
}

TEST_F(CommandReplay, aValueOfMoreThanSixDigitsLosesTheRest)
{
    type("mergeDistance", QStringLiteral("12.345678"));
    createMesh();
    EXPECT_EQ(lastOperation().mergeDistance, 12.345678f / 100.0f);
    ASSERT_EQ(lastCommand(), QStringLiteral("manualretopo 5 0.123457 0.05 35 0"));
    replay(lastCommand());
    EXPECT_EQ(lastOperation().mergeDistance, 0.123457f);
}

TEST_F(CommandReplay, aFreshDialogsLineGivesTheVeryMeshBitForBit)
{
    createMesh();
    const QVector<orvane::Geometry *> made = orvane::Kernel()->Scene()->Geometries().mid(1);
    ASSERT_EQ(made.size(), 1);
    const QByteArray asked = bytesOf(made.first());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    replay(lastCommand());
    const QVector<orvane::Geometry *> again = orvane::Kernel()->Scene()->Geometries().mid(1);
    ASSERT_EQ(again.size(), 1);
    EXPECT_EQ(again.first()->CurrentLevel()->VertexCount(), 4);
    EXPECT_EQ(bytesOf(again.first()), asked);
}

TEST_F(CommandReplay, allCurvesAreUsedEvenWhenSomeAreSelected)
{
    sheet.straight({2, 2, 0}, {6, 2, 0});
    for (OrvaneCurve *curve : qAsConst(cell))
        curve->SetSelected(true);
    createMesh();
    EXPECT_EQ(lastOperation().curveReferences.size(), 4);
    replay(lastCommand());
    EXPECT_EQ(curvesOf(lastOperation()), allCurves(sheet));
}

TEST_F(CommandReplay, curvesOfNoUseAreKept)
{
    drawPoint(sheet);
    replay(QLatin1String(Fresh));
    EXPECT_EQ(curvesOf(lastOperation()), allCurves(sheet));
}

TEST_F(CommandReplay, hiddenCurvesAreNotCollected)
{
    sheet.straight({2, 2, 0}, {6, 2, 0})->SetHidden(true);
    replay(QLatin1String(Fresh));
    EXPECT_EQ(lastOperation().curveReferences.size(), 4);
}

TEST_F(CommandReplay, theSelectionOfGeometryStays)
{
    sheet.geometry()->SetSelected(true);
    replay(QLatin1String(Fresh));
    EXPECT_TRUE(sheet.geometry()->Selected());
}

TEST_F(CommandReplay, eachReplayIsAStepOfItsOwnAndMakesNobodyWait)
{
    replay(QLatin1String(Fresh));
    replay(QLatin1String(Fresh));
    EXPECT_EQ(undoSteps(), 2) << "the same text again is a command again";
    EXPECT_EQ(interface.busyTurns, 0);
    ASSERT_TRUE(orvane::Kernel()->Undo());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(orvane::Kernel()->Scene()->Geometries().size(), 1);
}

TEST_F(CommandReplay, aReplayIsNotRecorded)
{
    const int before = orvane::Kernel()->RecordedCommands().size();
    replay(QLatin1String(Fresh));
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), before);
}

TEST_F(CommandReplay, withoutACurveTheMessageOfTheCollectionShowsOnce)
{
    orvane::Kernel()->NewScene();
    replay(QLatin1String(Fresh));
    EXPECT_EQ(interface.messageTexts(), QStringList(QStringLiteral("No valid 3d curve in scene")));
}

TEST_F(CommandReplay, itNeedsNoDialog)
{
    interface.window.reset();
    replayAndExpect(Fresh, 5, 0.3f, 0.05f, 0.35f, false);
}

TEST_F(CommandReplay, connectingIsNoCommand)
{
    replay(QLatin1String(Fresh));
    ASSERT_EQ(undoSteps(), 1);
    const orvane::Attribute *attribute = tool->AttributeByID(QStringLiteral("nextcomand"));
    ASSERT_NE(attribute, nullptr);
    tool->OnNodeEvent(*attribute, orvane::NodeEventConnected);
    tool->OnNodeEvent(*attribute, orvane::NodeEventDisconnected);
    EXPECT_EQ(undoSteps(), 1);
    tool->OnNodeEvent(*attribute, orvane::NodeEventValueChanged);
    EXPECT_EQ(undoSteps(), 2);
}

TEST_F(CommandReplay, otherAttributesAreNoCommand)
{
    replay(QLatin1String(Fresh));
    ASSERT_EQ(undoSteps(), 1);
    orvane::Node stranger;
    const orvane::AttributeInstance<QString> alike(&stranger, QStringLiteral("nextcomand"),
                                                   QLatin1String(Fresh));
    tool->OnNodeEvent(alike, orvane::NodeEventValueChanged);
    tool->OnNodeEvent(*tool->AttributeByID(QString()), orvane::NodeEventValueChanged);
    EXPECT_EQ(undoSteps(), 1);
}

TEST_F(CommandReplay, aToolMadeLaterDoesNotReplayTheCommandBefore)
{
    replay(QLatin1String(Fresh));
    ASSERT_EQ(undoSteps(), 1);
    makeTool();
    EXPECT_EQ(undoSteps(), 1);
    replay(QLatin1String(Fresh));
    EXPECT_EQ(undoSteps(), 2) << "and once, now that the first tool is gone";
}

TEST_F(CommandReplay, everyRecordedLineReplaysToTheValuesOfItsRequestWithinSixDigits)
{
    std::mt19937 random(testSeed());
    const int commands = repetitions("QUILLMESH_COMMANDS", UsualCommands);
    for (int i = 0; i < commands; ++i) {
        orvane::Kernel()->Undos().Clear();
        type("maximumEdges", QString::number(4 + int(random() % 100000)));
        typeRandom("mergeDistance", random, 0.0f, 1500.0f);
        typeRandom("intersectionTolerance", random, 0.0f, 1500.0f);
        typeRandom("overrunTolerance", random, 0.0f, 300.0f);
        setIgnoreSelfIntersections(random() & 1);
        createAndReplay();
        if (HasFatalFailure())
            return;
        ASSERT_TRUE(orvane::Kernel()->Undo());
        ASSERT_TRUE(orvane::Kernel()->Undo());
    }
}
