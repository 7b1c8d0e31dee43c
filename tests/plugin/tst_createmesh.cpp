// SPDX-License-Identifier: MIT
#include "plugin/overlaylist.h"
#include "plugin/quillmesh.h"
#include "tests/plugin/toolscene.h"
#include "tests/support/scenebytes.h"
#include "ui/manualretopodialog.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>
#include <orvane/operations/selectoperation.h>

#include <cstring>

using orvane::OrvaneCurve;

namespace {

const char *const NoCurves = "No valid 3d curve in scene";

// A curve that notes when tools ask whether they can use it; they cannot.
class AskedCurve : public OrvaneCurve
{
public:
    explicit AskedCurve(QVector<const OrvaneCurve *> *asked) : m_asked(asked) {}

    bool IsUsable() const override
    {
        m_asked->append(this);
        return false;
    }

private:
    QVector<const OrvaneCurve *> *m_asked;
};

// What happens when the dialog asks for a mesh.
class CreateMesh : public ToolScene
{
protected:
    // Five curves: two that make a face together, and three beside them that make another.
    QList<OrvaneCurve *> drawFive()
    {
        drawCross(sheet);
        sheet.straight({0.5f, 0.5f, 0}, {3.5f, 0.5f, 0});
        sheet.straight({0.5f, 0.2f, 0}, {2.2f, 2.4f, 0});
        sheet.straight({3.5f, 0.2f, 0}, {1.8f, 2.4f, 0});
        return sheet.curves();
    }

    static QVector<orvane::Node *> nodes(const QList<OrvaneCurve *> &curves)
    {
        QVector<orvane::Node *> all;
        for (OrvaneCurve *curve : curves)
            all.append(curve);
        return all;
    }

    static int geometries() { return orvane::Kernel()->Scene()->Geometries().size(); }

    Sheet sheet;
};

quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

TEST_F(CreateMesh, withTwoOfFiveCurvesSelectedOnlyThoseTwoReachTheOperation)
{
    const QList<OrvaneCurve *> curves = drawFive();
    curves[0]->SetSelected(true);
    curves[1]->SetSelected(true);
    createMesh();
    EXPECT_EQ(curvesOf(lastOperation()), nodes(curves.mid(0, 2)));
    EXPECT_EQ(geometries(), 2);
}

TEST_F(CreateMesh, withNoneSelectedAllFiveReachTheOperation)
{
    const QList<OrvaneCurve *> curves = drawFive();
    createMesh();
    EXPECT_EQ(curvesOf(lastOperation()), nodes(curves));
    EXPECT_EQ(geometries(), 3) << "one more mesh from the three others";
}

TEST_F(CreateMesh, curvesOfNoUseAreLeftOutOfTheSelection)
{
    OrvaneCurve *point = drawPoint(sheet);
    const QList<OrvaneCurve *> cross = drawCross(sheet);
    OrvaneCurve *empty = sheet.stroke({});
    for (OrvaneCurve *curve : {point, cross[0], cross[1], empty})
        curve->SetSelected(true);
    createMesh();
    EXPECT_EQ(curvesOf(lastOperation()), nodes(cross));
}

TEST_F(CreateMesh, curvesOfNoUseAreLeftOutOfAllToo)
{
    const QList<OrvaneCurve *> cross = drawCross(sheet);
    drawPoint(sheet);
    sheet.stroke({});
    createMesh();
    EXPECT_EQ(curvesOf(lastOperation()), nodes(cross));
}

TEST_F(CreateMesh, aSelectionOfNothingUsableDoesNotFallBackToAllCurves)
{
    drawCross(sheet);
    drawPoint(sheet)->SetSelected(true);
    createMesh();
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_EQ(geometries(), 1);
    EXPECT_FALSE(interface.messageTexts().contains(QLatin1String(NoCurves)));
}

TEST_F(CreateMesh, hiddenCurvesAreNotUsedEvenWhenSelected)
{
    const QList<OrvaneCurve *> curves = drawFive();
    curves[4]->SetSelected(true);
    curves[4]->SetHidden(true);
    createMesh();
    EXPECT_EQ(curvesOf(lastOperation()), nodes(curves.mid(0, 4)));
}

TEST_F(CreateMesh, geometryIsDeselectedFirstAndTheSelectionOfCurvesStays)
{
    const QList<OrvaneCurve *> curves = drawFive();
    sheet.geometry()->SetSelected(true);
    curves[0]->SetSelected(true);
    curves[1]->SetSelected(true);
    createMesh();
    EXPECT_FALSE(sheet.geometry()->Selected());
    EXPECT_TRUE(curves[0]->Selected());
    EXPECT_TRUE(curves[1]->Selected());
    EXPECT_FALSE(curves[2]->Selected());
    EXPECT_EQ(undoSteps(), 1) << "the deselection is no step of its own";
}

TEST_F(CreateMesh, deselectionComesBeforeTheCurvesAreCollected)
{
    sheet.geometry()->SetSelected(true);
    bool wasSelected = true;
    interface.whenMessageShows = [&]() {
        wasSelected = sheet.geometry()->Selected();
    };
    createMesh();
    ASSERT_EQ(interface.messageTexts(), QStringList(QLatin1String(NoCurves)));
    EXPECT_FALSE(wasSelected);
}

TEST_F(CreateMesh, theCommandIsRecordedBeforeTheOperationRuns)
{
    drawCross(sheet);
    type("maximumEdges", QStringLiteral("9"));
    QString commandThen;
    bool isRunning = false;
    interface.whenGenerating = [&]() {
        commandThen = lastCommand();
        isRunning = orvane::Kernel()->IsOperationRunning();
    };
    const int before = orvane::Kernel()->RecordedCommands().size();
    createMesh();
    EXPECT_TRUE(isRunning);
    EXPECT_EQ(commandThen, QStringLiteral("manualretopo 9 0.3 0.05 35 0"));
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), before + 1) << "and once";
}

TEST_F(CreateMesh, maximumEdges6AndOverrun35BuildTheOperationWith6And035AndRecord35)
{
    drawCross(sheet);
    type("maximumEdges", QStringLiteral("6"));
    type("overrunTolerance", QStringLiteral("35"));
    createMesh();
    const OperationState operation = lastOperation();
    EXPECT_EQ(operation.maxEdges, 6);
    EXPECT_EQ(bitsOf(operation.overrunTolerance), bitsOf(float(35.0 * 0.01)));
    EXPECT_EQ(bitsOf(operation.overrunTolerance), bitsOf(0.35f));
    EXPECT_EQ(lastCommand(), QStringLiteral("manualretopo 6 0.3 0.05 35 0"));
}

TEST_F(CreateMesh, everyValueReachesItsOwnPlace)
{
    drawCross(sheet);
    type("maximumEdges", QStringLiteral("8"));
    type("mergeDistance", QStringLiteral("12.5"));
    type("intersectionTolerance", QStringLiteral("7"));
    type("overrunTolerance", QStringLiteral("80"));
    setIgnoreSelfIntersections(false);
    createMesh();
    const OperationState operation = lastOperation();
    EXPECT_EQ(operation.maxEdges, 8);
    EXPECT_EQ(operation.mergeDistance, 12.5f / 100.0f);
    EXPECT_EQ(operation.intersectionTolerance, 7.0f / 100.0f);
    EXPECT_EQ(operation.overrunTolerance, float(80.0 * 0.01));
    EXPECT_TRUE(operation.useSelfIntersections);
    EXPECT_EQ(lastCommand(), QStringLiteral("manualretopo 8 0.125 0.07 80 1"));
}

TEST_F(CreateMesh, withoutACurveTheMessageShowsOnceForEachRequest)
{
    createMesh();
    ASSERT_EQ(interface.messageTexts(), QStringList(QLatin1String(NoCurves)));
    EXPECT_EQ(interface.messages.first().type, 1);
    EXPECT_EQ(interface.messages.first().milliseconds, 2000);
    interface.messages.clear();
    createMesh();
    EXPECT_EQ(interface.messageTexts(), QStringList(QLatin1String(NoCurves)));
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_FALSE(lastCommand().isEmpty());
}

TEST_F(CreateMesh, theUserWaitsAndHearsThatNothingWasMade)
{
    sheet.straight({1, 1, 0}, {5, 1, 0});
    createMesh();
    EXPECT_EQ(interface.busyTurns, 1) << "the deselection makes nobody wait";
    ASSERT_EQ(interface.messages.size(), 1);
    EXPECT_TRUE(interface.messages.first().text.startsWith(QStringLiteral("Nothing was made")));
}

TEST_F(CreateMesh, eachRequestIsAStepOfItsOwnThatUndoTakesBack)
{
    drawCross(sheet);
    createMesh();
    createMesh();
    EXPECT_EQ(undoSteps(), 2);
    EXPECT_EQ(geometries(), 3);
    EXPECT_EQ(orvane::Kernel()->Undos().UndoText(), QStringLiteral("ManualRetopoOperation"))
        << "what a translator is given";
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(geometries(), 2);
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(geometries(), 1);
    EXPECT_TRUE(orvane::Kernel()->Undos().UndoText().isEmpty());
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_EQ(geometries(), 2);
}

// What the request deselects is no step, so that undo takes back what the user did and nothing
// else; doing all again then leaves selected what the user selected.
TEST_F(CreateMesh, undoneAndDoneAgainTheSceneIsTheSameButForWhatTheRequestDeselected)
{
    drawCell(sheet, {2, 2, 0}, 2.0f);
    orvane::Geometry *source = orvane::Kernel()->Scene()->Geometries().constFirst();
    orvane::SelectOperation selection({source});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&selection, true, false));
    createMesh();
    EXPECT_FALSE(source->Selected());
    const QByteArray before = sceneBytes();
    ASSERT_TRUE(orvane::Kernel()->Undo() && orvane::Kernel()->Undo() && orvane::Kernel()->Redo()
                && orvane::Kernel()->Redo());
    EXPECT_TRUE(source->Selected());
    EXPECT_NE(sceneBytes(), before);
    orvane::SelectAllOperation deselection(false);
    orvane::Kernel()->DoOperation(&deselection, false, false);
    EXPECT_EQ(sceneBytes(), before);
}

TEST_F(CreateMesh, theNewMeshesAreBroughtUpToDateAtTheEnd)
{
    drawCross(sheet);
    const orvane::Vector far(50, 50, 50);
    orvane::SubdivisionLevel *mesh = nullptr;
    interface.whenCreated = [&]() {
        mesh = orvane::Kernel()->Scene()->Geometries().last()->CurrentLevel();
        mesh->SetVertexPosition(0, far);
    };
    createMesh();
    ASSERT_NE(mesh, nullptr);
    EXPECT_EQ(mesh->Bounds().maximum, far);
}

TEST_F(CreateMesh, theNewMeshesGetTheirPolygonsAnewAtTheEnd)
{
    drawCross(sheet);
    orvane::SubdivisionLevel *mesh = nullptr;
    int faces = 0;
    interface.whenCreated = [&]() {
        mesh = orvane::Kernel()->Scene()->Geometries().last()->CurrentLevel();
        faces = mesh->FaceCount();
        mesh->SetFaceCount(faces + 1);
    };
    createMesh();
    ASSERT_NE(mesh, nullptr);
    EXPECT_EQ(mesh->Polygons().Count(), faces + 1);
}

TEST_F(CreateMesh, curvesAreAskedForTheirUseFromTheLastToTheFirst)
{
    QVector<const OrvaneCurve *> asked;
    QVector<const OrvaneCurve *> added;
    for (int i = 0; i < 3; ++i) {
        auto *curve = new AskedCurve(&asked);
        orvane::Kernel()->Scene()->AddCurve(curve);
        added.prepend(curve);
    }
    createMesh();
    EXPECT_EQ(asked, added);
}

TEST_F(CreateMesh, aRequestInTheMiddleOfAnotherIsNeitherRunNorRecorded)
{
    drawCross(sheet);
    bool isFirst = true;
    interface.whenGenerating = [&]() {
        if (isFirst) {
            isFirst = false;
            tool->createMesh();
            replay(QStringLiteral("manualretopo 5 0.3 0.05 35 0"));
        }
    };
    const int commands = orvane::Kernel()->RecordedCommands().size();
    createMesh();
    EXPECT_EQ(undoSteps(), 1);
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), commands + 1);
    EXPECT_FALSE(OverlayList::instance().nodes().isEmpty());
}

TEST_F(CreateMesh, nothingHappensOnceTheWindowHasTakenTheDialogWithIt)
{
    drawCross(sheet);
    interface.window.reset();
    const int commands = orvane::Kernel()->RecordedCommands().size();
    tool->createMesh();
    EXPECT_EQ(undoSteps(), 0);
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), commands);
}
