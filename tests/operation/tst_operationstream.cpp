// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"
#include "tests/operation/operationscene.h"
#include "tests/operation/operationstate.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::OrvaneCurve;

namespace {

class OperationStream : public OperationScene
{};

template <typename T>
void append(QByteArray &bytes, T value)
{
    bytes.append(reinterpret_cast<const char *>(&value), int(sizeof(T)));
}

void replaceNumber(QByteArray &bytes, int place, int value)
{
    QByteArray number;
    append(number, value);
    bytes.replace(place, number.size(), number);
}

} // namespace

TEST_F(OperationStream, aNewOperationReadsBackTheSameAndHandsOver38BytesBeforeAnyReference)
{
    ManualRetopoOperation written(7, 0.5f, 0.25f, 0.125f, false);
    const QByteArray bytes = bytesOf(written);
    EXPECT_EQ(bytes.size(), 38);

    ManualRetopoOperation read;
    ASSERT_TRUE(readInto(read, bytes));
    const OperationState state = stateOf(read);
    EXPECT_TRUE(state.firstExecution);
    EXPECT_EQ(state.maxEdges, 7);
    EXPECT_EQ(state.mergeDistance, 0.5f);
    EXPECT_EQ(state.intersectionTolerance, 0.25f);
    EXPECT_EQ(state.overrunTolerance, 0.125f);
    EXPECT_FALSE(state.useSelfIntersections);
    EXPECT_TRUE(state.geometryIDs.isEmpty());
    EXPECT_TRUE(state.companionIDs.isEmpty());
    EXPECT_TRUE(state.meshIDs.isEmpty());
    EXPECT_TRUE(state.geometryReferences.isEmpty());
    EXPECT_TRUE(state.curveReferences.isEmpty());
    EXPECT_EQ(bytesOf(read), bytes);
}

TEST_F(OperationStream, anOperationSavedAfterAnUndoCarriesItsIdentifiersForARedoAfterLoading)
{
    Sheet sheet(20);
    drawCell(sheet, {2, 2, 0}, 2.0f);
    drawCell(sheet, {12, 12, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    const std::vector<Created> created = createdGeometries(1);
    ASSERT_EQ(created.size(), 2u);
    ASSERT_TRUE(operation->ExecuteAndInvert());

    ManualRetopoOperation loaded;
    ASSERT_TRUE(readInto(loaded, bytesOf(*operation)));
    EXPECT_EQ(stateOf(loaded).geometryIDs,
              (QVector<int>{created[0].geometryID, created[1].geometryID}));
    EXPECT_EQ(stateOf(loaded).companionIDs,
              (QVector<int>{created[0].placementID, created[1].placementID}));
    EXPECT_EQ(stateOf(loaded).meshIDs, (QVector<int>{created[0].meshID, created[1].meshID}));
    ASSERT_TRUE(loaded.ExecuteAndInvert());
    EXPECT_TRUE(createdGeometries(1) == created);
}

TEST_F(OperationStream, aReferenceToANonCurveNodeLoadsAsANullCurveEntry)
{
    Sheet sheet;
    OrvaneCurve *curve = sheet.straight({1, 1, 0}, {2, 2, 0});
    const auto operation = operationOn({curve, curve, curve});
    QByteArray bytes = bytesOf(*operation);
    replaceNumber(bytes, 38 + 4, sheet.geometry()->ID());
    ManualRetopoOperation loaded;
    ASSERT_TRUE(readInto(loaded, bytes));
    EXPECT_EQ(stateOf(loaded).curveReferences, (QVector<int>{curve->ID(), 0, curve->ID()}));
}

TEST_F(OperationStream, readingIntoAnOperationWhoseCurveListIsNotEmptyAppendsToIt)
{
    Sheet sheet;
    OrvaneCurve *first = sheet.straight({1, 1, 0}, {2, 2, 0});
    OrvaneCurve *second = sheet.straight({1, 2, 0}, {2, 1, 0});
    const auto written = operationOn({second});
    const auto read = operationOn({first});
    ASSERT_TRUE(readInto(*read, bytesOf(*written)));
    EXPECT_EQ(stateOf(*read).curveReferences, (QVector<int>{first->ID(), second->ID()}));
}

TEST_F(OperationStream, theLayoutIsFlagLimitMergeToleranceSelfOverrunCountsIdentifiersReferences)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const QList<OrvaneCurve *> curves = sheet.curves();
    ManualRetopoOperation operation(curves, 6, 0.1f, 0.05f, 0.25f, false);
    ASSERT_TRUE(operation.ExecuteAndInvert());
    ASSERT_TRUE(operation.ExecuteAndInvert());
    ASSERT_TRUE(operation.ExecuteAndInvert());
    const std::vector<Created> created = createdGeometries(1);
    ASSERT_EQ(created.size(), 1u);

    QByteArray expected;
    append(expected, char(0));
    append(expected, int(6));
    append(expected, 0.1f);
    append(expected, 0.05f);
    append(expected, char(0));
    append(expected, 0.25f);
    append(expected, int(1));
    append(expected, curves.size());
    for (int id : {created[0].geometryID, created[0].placementID, created[0].meshID}) {
        append(expected, int(1));
        append(expected, id);
    }
    append(expected, created[0].geometryID);
    for (const OrvaneCurve *curve : curves)
        append(expected, curve->ID());
    EXPECT_EQ(bytesOf(operation), expected);

    ManualRetopoOperation read;
    ASSERT_TRUE(readInto(read, expected));
    const OperationState state = stateOf(read);
    EXPECT_FALSE(state.firstExecution);
    EXPECT_EQ(state.maxEdges, 6);
    EXPECT_EQ(state.mergeDistance, 0.1f);
    EXPECT_EQ(state.intersectionTolerance, 0.05f);
    EXPECT_FALSE(state.useSelfIntersections);
    EXPECT_EQ(state.overrunTolerance, 0.25f);
    EXPECT_EQ(state.geometryIDs, QVector<int>{created[0].geometryID});
    EXPECT_EQ(state.companionIDs, QVector<int>{created[0].placementID});
    EXPECT_EQ(state.meshIDs, QVector<int>{created[0].meshID});
    EXPECT_EQ(state.geometryReferences, QVector<int>{created[0].geometryID});
    EXPECT_EQ(state.curveReferences.size(), curves.size());
    EXPECT_EQ(bytesOf(read), expected);
}

TEST_F(OperationStream, whatWasCreatedBeforeIsForgottenWhenAnotherStateIsRead)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto done = operationOn(sheet.curves());
    ManualRetopoOperation fresh(5, 0.5f, 0.25f, 0.0f, false);
    const QByteArray bytes = bytesOf(fresh);
    ASSERT_TRUE(done->ExecuteAndInvert());
    ASSERT_TRUE(readInto(*done, bytes));
    EXPECT_TRUE(done->AddGeometry().isEmpty());
    EXPECT_TRUE(stateOf(*done).geometryIDs.isEmpty());
}

TEST_F(OperationStream, createdGeometryIsReplacedByWhatIsReadAndStrangersAndNullAreNullEntries)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    QByteArray bytes = bytesOf(*operation);
    replaceNumber(bytes, 38, sheet.curves().first()->ID());
    ManualRetopoOperation loaded;
    ASSERT_TRUE(readInto(loaded, bytes));
    EXPECT_EQ(loaded.AddGeometry(), QVector<orvane::Geometry *>{nullptr});
    ASSERT_TRUE(loaded.ExecuteAndInvert()) << "the undo of a null entry destroys nothing";
    EXPECT_TRUE(loaded.AddGeometry().isEmpty());
    EXPECT_EQ(stateOf(loaded).geometryIDs.size(), 1);
    EXPECT_EQ(createdGeometries(1).size(), 1u);
    ASSERT_TRUE(operation->ExecuteAndInvert());
}

TEST_F(OperationStream, nullCurvesAndGeometriesThatLeftTheSceneGoOutAndComeBackAsNull)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    QList<OrvaneCurve *> curves = sheet.curves();
    curves.insert(1, nullptr);
    const auto operation = operationOn(curves);
    ASSERT_TRUE(operation->ExecuteAndInvert());
    const QByteArray bytes = bytesOf(*operation);
    EXPECT_EQ(stateOf(*operation).curveReferences[1], 0);
    ASSERT_TRUE(operation->ExecuteAndInvert());
    ManualRetopoOperation loaded;
    ASSERT_TRUE(readInto(loaded, bytes));
    EXPECT_EQ(loaded.AddGeometry(), QVector<orvane::Geometry *>{nullptr});
    EXPECT_EQ(stateOf(loaded).curveReferences, stateOf(*operation).curveReferences);
}

TEST_F(OperationStream, aGeometryThatIsNamedTwiceIsTakenBackOnce)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    const int id = operation->AddGeometry().first()->ID();
    QByteArray bytes = bytesOf(*operation);
    replaceNumber(bytes, 18, 2); // the count of geometries
    bytes.insert(38, bytes.mid(38, 4));

    ManualRetopoOperation loaded;
    ASSERT_TRUE(readInto(loaded, bytes));
    EXPECT_EQ(stateOf(loaded).geometryReferences, (QVector<int>{id, 0}));
    EXPECT_TRUE(loaded.ExecuteAndInvert());
    EXPECT_TRUE(createdGeometries(1).empty());
}

TEST_F(OperationStream, whateverEndsEarlyOrMakesNoSenseNeitherCrashesNorHangs)
{
    Sheet sheet;
    drawCell(sheet, {2, 2, 0}, 2.0f);
    const auto operation = operationOn(sheet.curves());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    ASSERT_TRUE(operation->ExecuteAndInvert());
    const QByteArray whole = bytesOf(*operation);
    for (int length = 0; length < whole.size(); ++length) {
        ManualRetopoOperation loaded;
        EXPECT_FALSE(readInto(loaded, whole.left(length))) << length;
    }
    std::mt19937 random(testSeed());
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes = whole;
        for (unsigned i = 0; i <= random() % 4; ++i)
            bytes[int(random() % unsigned(bytes.size()))] = char(random());
        ManualRetopoOperation loaded;
        readInto(loaded, bytes);
        ASSERT_LE(loaded.AddGeometry().size(), bytes.size());
    }
}
