// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"
#include "tests/operation/operationscene.h"
#include "tests/operation/operationstate.h"
#include "tests/support/countingview.h"
#include "tests/support/recordinginterface.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::OrvaneCurve;

namespace {

class ManualRetopoOperationTest : public OperationScene
{};

QVector<int> idsOf(const QVector<orvane::Geometry *> &geometries)
{
    QVector<int> ids;
    for (const orvane::Geometry *geometry : geometries) {
        ids.append(geometry->ID());
        ids.append(geometry->Placement()->ID());
        ids.append(geometry->CurrentLevel()->ID());
    }
    return ids;
}

} // namespace

TEST_F(ManualRetopoOperationTest, aParameterlessObjectReports5And30And08And0AndTrueAndNoCurves)
{
    ManualRetopoOperation operation;
    const OperationState state = stateOf(operation);
    EXPECT_EQ(state.maxEdges, 5);
    EXPECT_EQ(state.mergeDistance, 30.0f);
    EXPECT_EQ(state.intersectionTolerance, 0.8f);
    EXPECT_EQ(state.overrunTolerance, 0.0f);
    EXPECT_TRUE(state.useSelfIntersections);
    EXPECT_TRUE(state.curveReferences.isEmpty());
    EXPECT_TRUE(state.firstExecution);
    EXPECT_TRUE(operation.AddGeometry().isEmpty());
    EXPECT_TRUE(operation.Subgraphs().isEmpty());
}

TEST_F(ManualRetopoOperationTest, doWithNoUsableCurvesReturnsFalseKeepsTheFlagAndTriesAgainNextTime)
{
    RecordingInterface interface;
    const CountingView view;
    Sheet sheet;
    sheet.straight({1, 1, 0}, {4, 1, 0});
    const auto operation = operationOn(sheet.curves());
    const QVector<orvane::Node *> before = sceneNodes();
    for (int attempt = 1; attempt <= 2; ++attempt) {
        EXPECT_FALSE(operation->ExecuteAndInvert());
        EXPECT_TRUE(stateOf(*operation).firstExecution);
        EXPECT_EQ(interface.phases.size(), 2 * attempt) << "it generates, it does not undo";
        EXPECT_EQ(sceneNodes(), before);
    }
    EXPECT_EQ(view.redraws, 0);
    EXPECT_EQ(interface.refreshes, 0);
    drawCell(sheet, {5, 5, 0}, 2.0f);
    *operation = *operationOn(sheet.curves());
    EXPECT_TRUE(operation->ExecuteAndInvert());
}

TEST_F(ManualRetopoOperationTest, redoGivesAsManyObjectsAsTheDoWithTheSameNodeIdentifiers)
{
    Sheet sheet(20);
    drawCell(sheet, {2, 2, 0}, 2.0f);
    drawCell(sheet, {12, 12, 0}, 3.0f);
    const auto operation = operationOn(sheet.curves());
    const QVector<orvane::Node *> before = sceneNodes();

    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_FALSE(stateOf(*operation).firstExecution);
    ASSERT_EQ(operation->AddGeometry().size(), 2);
    const QVector<int> ids = idsOf(operation->AddGeometry());
    for (const orvane::Geometry *geometry : operation->AddGeometry())
        EXPECT_TRUE(orvane::Kernel()->Scene()->Contains(geometry));
    EXPECT_EQ(orvane::Kernel()->Scene()->ActiveGeometry(), operation->AddGeometry().last());

    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_TRUE(stateOf(*operation).firstExecution);
    EXPECT_TRUE(operation->AddGeometry().isEmpty());
    EXPECT_EQ(sceneNodes(), before);

    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(operation->AddGeometry().size(), 2);
    EXPECT_EQ(idsOf(operation->AddGeometry()), ids);
    EXPECT_EQ(sceneNodes().size(), before.size() + 2);
}

TEST_F(ManualRetopoOperationTest, undoOfThreeMeshesLeavesThreeEntriesInEachVectorInCreationOrder)
{
    Sheet sheet(30);
    drawCell(sheet, {2, 2, 0}, 2.0f);
    drawCell(sheet, {12, 12, 0}, 3.0f);
    drawCell(sheet, {22, 22, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    ASSERT_EQ(operation->AddGeometry().size(), 3);
    OperationState state = stateOf(*operation);
    EXPECT_TRUE(state.geometryIDs.isEmpty());
    EXPECT_TRUE(state.companionIDs.isEmpty());
    EXPECT_TRUE(state.meshIDs.isEmpty());
    const QVector<int> ids = idsOf(operation->AddGeometry());

    ASSERT_TRUE(operation->ExecuteAndInvert());
    state = stateOf(*operation);
    EXPECT_EQ(state.geometryIDs, (QVector<int>{ids[0], ids[3], ids[6]}));
    EXPECT_EQ(state.companionIDs, (QVector<int>{ids[1], ids[4], ids[7]}));
    EXPECT_EQ(state.meshIDs, (QVector<int>{ids[2], ids[5], ids[8]}));

    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(stateOf(*operation).geometryIDs, state.geometryIDs) << "a redo leaves them alone";
}

TEST_F(ManualRetopoOperationTest, copyAndAssignmentCarryTheFlagSoThatACopyOfADoneOperationUndoes)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const QVector<orvane::Node *> before = sceneNodes();
    const auto operation = operationOn(sheet.curves(), 0.25f);
    ASSERT_TRUE(operation->ExecuteAndInvert());

    ManualRetopoOperation copy(*operation);
    EXPECT_EQ(bytesOf(copy), bytesOf(*operation));
    EXPECT_EQ(copy.AddGeometry(), operation->AddGeometry());
    EXPECT_EQ(copy.Subgraphs(), operation->Subgraphs());
    EXPECT_TRUE(copy.ExecuteAndInvert());
    EXPECT_EQ(sceneNodes(), before);

    ASSERT_TRUE(copy.ExecuteAndInvert());
    ManualRetopoOperation assigned;
    assigned = copy;
    EXPECT_EQ(bytesOf(assigned), bytesOf(copy));
    EXPECT_TRUE(assigned.ExecuteAndInvert());
    EXPECT_EQ(sceneNodes(), before);
}

TEST_F(ManualRetopoOperationTest, theConstructorsTakeTheParametersInTheirOrder)
{
    Sheet sheet;
    OrvaneCurve *curve = sheet.straight({1, 1, 0}, {2, 2, 0});
    ManualRetopoOperation plain(7, 0.5f, 0.25f, 0.125f, false);
    ManualRetopoOperation onCurves({curve}, 8, 1.5f, 1.25f, 1.125f, true);
    OperationState state = stateOf(plain);
    EXPECT_EQ(state.maxEdges, 7);
    EXPECT_EQ(state.mergeDistance, 0.5f);
    EXPECT_EQ(state.intersectionTolerance, 0.25f);
    EXPECT_EQ(state.overrunTolerance, 0.125f);
    EXPECT_FALSE(state.useSelfIntersections);
    EXPECT_TRUE(state.firstExecution);
    EXPECT_TRUE(state.curveReferences.isEmpty());
    state = stateOf(onCurves);
    EXPECT_EQ(state.maxEdges, 8);
    EXPECT_EQ(state.mergeDistance, 1.5f);
    EXPECT_EQ(state.intersectionTolerance, 1.25f);
    EXPECT_EQ(state.overrunTolerance, 1.125f);
    EXPECT_TRUE(state.useSelfIntersections);
    EXPECT_EQ(state.curveReferences, QVector<int>{curve->ID()});
}

TEST_F(ManualRetopoOperationTest, theClassIsFoundByNameAndMakesOneObjectOrAnArray)
{
    const orvane::ClassDesc *desc =
        orvane::ClassDesc::ByName(QStringLiteral("ManualRetopoOperation"));
    ASSERT_EQ(desc, ManualRetopoOperation::StaticClass());
    EXPECT_EQ(desc->Parent(), orvane::Operation::StaticClass());
    EXPECT_EQ(desc->Category(), orvane::Operation::StaticClass());
    EXPECT_EQ(desc->DisplayName(), QStringLiteral("ManualRetopoOperation"));
    EXPECT_EQ(desc->Version(), 0);
    EXPECT_EQ(desc->Flags(), 0);
    for (unsigned count : {0u, 1u}) {
        const std::unique_ptr<orvane::Node> made(ManualRetopoOperation::CreateInstances(count));
        auto *operation = dynamic_cast<ManualRetopoOperation *>(made.get());
        ASSERT_TRUE(operation);
        EXPECT_EQ(operation->RuntimeClass(), desc);
    }
    auto *first = dynamic_cast<ManualRetopoOperation *>(ManualRetopoOperation::CreateInstances(3));
    const std::unique_ptr<ManualRetopoOperation[]> three(first);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(stateOf(three[std::size_t(i)]).maxEdges, 5);
}

TEST_F(ManualRetopoOperationTest, doAndUndoEachRepaintTheViewAndRefreshThePanelsOnce)
{
    RecordingInterface interface;
    const CountingView view;
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    for (int call = 1; call <= 3; ++call) {
        ASSERT_TRUE(operation->ExecuteAndInvert());
        EXPECT_EQ(view.redraws, call);
        EXPECT_EQ(interface.refreshes, call);
    }
    EXPECT_EQ(view.partialRedraws, 0);
}

TEST_F(ManualRetopoOperationTest, theCreatedGeometryIsNamedAfterItsSource)
{
    Sheet sheet(10, orvane::Matrix(), QStringLiteral("Body"));
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    EXPECT_EQ(operation->AddGeometry().first()->Name(), QStringLiteral("Body-Retopo"));
}

TEST_F(ManualRetopoOperationTest, itsTextsAreTranslatedInItsOwnContext)
{
    EXPECT_EQ(ManualRetopoOperation::tr("Undone", nullptr, -1), QStringLiteral("Undone"));
}
