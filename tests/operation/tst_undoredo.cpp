// SPDX-License-Identifier: MIT
#include "graph/nodestore.h"
#include "host/files/curvebinding.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "operation/manualretopooperation.h"
#include "tests/operation/operationscene.h"
#include "tests/support/memoryuse.h"
#include "tests/support/models.h"
#include "tests/support/shapes.h"

#include <orvane/base/log.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>

#include <iostream>

using orvane::OrvaneCurve;

namespace {

const float BindTolerance = 0.02f;      // fraction of the mesh's diagonal
const int LogCapacity = 6000;           // lines, more than the log keeps
const qint64 MemoryAllowance = 2 << 20; // bytes that a thousand rounds may cost

// A tool's defaults: faces of 5 edges, 30 % merging, 5 % tolerance, 35 % overrun.
std::unique_ptr<ManualRetopoOperation> defaultOperation(const QList<OrvaneCurve *> &curves)
{
    return std::make_unique<ManualRetopoOperation>(curves, 5, 0.30f, 0.05f, 0.35f, false);
}

class UndoRedo : public OperationScene
{
protected:
    UndoRedo() : kernel(*orvane::Kernel()) {}

    bool create(const QList<OrvaneCurve *> &strokes, float overrun = 0.0f)
    {
        const auto operation = operationOn(strokes, overrun);
        return kernel.DoOperation(operation.get(), false, false);
    }

    // Undoes and redoes the latest so many steps; what they created must vanish and come back.
    void goRound(int steps, int sources)
    {
        const std::vector<Created> before = createdGeometries(sources);
        const int nodes = kernel.Scene()->NodeCount();
        const int created = int(before.size());
        for (int i = 0; i < steps; ++i)
            ASSERT_TRUE(kernel.Undo());
        ASSERT_EQ(kernel.Scene()->Geometries().size(), sources);
        ASSERT_EQ(kernel.Scene()->NodeCount(), nodes - created);
        for (int i = 0; i < steps; ++i)
            ASSERT_TRUE(kernel.Redo());
        ASSERT_TRUE(createdGeometries(sources) == before);
        ASSERT_EQ(kernel.Scene()->NodeCount(), nodes);
    }

    void goRoundAndRound(int rounds, int steps, int sources)
    {
        for (int round = 0; round < rounds; ++round) {
            SCOPED_TRACE(round);
            goRound(steps, sources);
            if (HasFatalFailure())
                return;
        }
    }

    void expectFlatMemory(int rounds, int sources)
    {
        for (int i = 0; i < LogCapacity; ++i) // full from the start, it costs nothing later
            orvane::log(QStringLiteral("Adding a line as long as those of a run: 0.000123 s"));
        goRoundAndRound(qMax(20, rounds / 10), 1, sources);
        const qint64 before = memoryInUse();
        const int nodes = NodeStore::instance().nodeCount();
        goRoundAndRound(rounds, 1, sources);
        EXPECT_EQ(NodeStore::instance().nodeCount(), nodes);
        const qint64 growth = memoryInUse() - before;
        std::cout << rounds << " rounds, memory grew by " << growth << " bytes" << std::endl;
        EXPECT_LE(growth, MemoryAllowance);
    }

    // Opens a mesh and the curves drawn on it. False, and the test is skipped, without them.
    bool open(const QString &meshName, const QString &curveName)
    {
        const QString meshPath = modelFile(meshName);
        const QString curvePath = modelFile(curveName);
        if (meshPath.isEmpty() || curvePath.isEmpty())
            return false;
        QString error;
        orvane::Geometry *geometry = orvane::readMesh(meshPath, &error);
        const QVector<OrvaneCurve *> read = orvane::readCurves(curvePath, &error);
        EXPECT_TRUE(error.isEmpty()) << error.toStdString();
        kernel.Scene()->AddGeometry(geometry);
        const orvane::SubdivisionLevel &mesh = *geometry->CurrentLevel();
        for (OrvaneCurve *curve : read) {
            kernel.Scene()->AddCurve(curve);
            curves.append(curve);
        }
        orvane::bindCurves(read, mesh, BindTolerance * mesh.Bounds().Diagonal());
        return true;
    }

    class orvane::Kernel &kernel;
    QList<OrvaneCurve *> curves;
};

} // namespace

TEST_F(UndoRedo, tenRoundsOnARealNetGiveTheSameIdentifiersAndTheSameGeometryBitForBit)
{
    if (!open(QStringLiteral("spot_triangles.obj"), QStringLiteral("spot_net.json")))
        GTEST_SKIP() << "The model folder is not at hand (QUILLMESH_MODELS).";
    ASSERT_TRUE(kernel.DoOperation(defaultOperation(curves).get(), false, false));
    ASSERT_EQ(createdGeometries(1).size(), 1u);
    EXPECT_GT(createdGeometries(1)[0].bytes.size(), 10000);
    goRoundAndRound(10, 1, 1);
}

TEST_F(UndoRedo, aThousandRoundsOnARealNetLeaveMemoryFlat)
{
    if (!open(QStringLiteral("spot_triangles.obj"), QStringLiteral("spot_net.json")))
        GTEST_SKIP() << "The model folder is not at hand (QUILLMESH_MODELS).";
    ASSERT_TRUE(kernel.DoOperation(defaultOperation(curves).get(), false, false));
    expectFlatMemory(1000, 1);
}

TEST_F(UndoRedo, aThousandRoundsLeaveMemoryFlat)
{
    Sheet sheet(20);
    sheet.grid(8, 8, 1.5f);
    sheet.wavy({1, 3, 0}, {19, 16, 0}, 80, 1.2f, 3.0f);
    drawCell(sheet, {0.5f, 17.5f, 0}, 1.0f);
    ASSERT_TRUE(create(sheet.curves()));
    ASSERT_EQ(createdGeometries(1).size(), 2u);
    expectFlatMemory(1000, 1);
}

TEST_F(UndoRedo, severalOperationsInTheHistoryGoBackAndForthTogether)
{
    Sheet sheet(30);
    const QList<OrvaneCurve *> first = drawCell(sheet, {2, 2, 0}, 2.0f);
    const QList<OrvaneCurve *> second =
        drawCell(sheet, {12, 2, 0}, 2.0f) + drawCell(sheet, {12, 12, 0}, 3.0f);
    const QList<OrvaneCurve *> third = drawCell(sheet, {22, 22, 0}, 4.0f);
    ASSERT_TRUE(create(first));
    orvane::SelectAllOperation select;
    ASSERT_TRUE(kernel.DoOperation(&select, true, false));
    ASSERT_TRUE(create(second));
    ASSERT_TRUE(create(third));
    ASSERT_EQ(createdGeometries(1).size(), 4u);
    goRoundAndRound(10, 4, 1);
    ASSERT_TRUE(kernel.Undo());
    ASSERT_EQ(createdGeometries(1).size(), 3u);
    goRound(3, 1);
    ASSERT_TRUE(kernel.Redo());
    EXPECT_FALSE(kernel.Redo());
    EXPECT_EQ(createdGeometries(1).size(), 4u);
}

TEST_F(UndoRedo, aMeshMadeFromCurvesOnAMadeMeshComesBackWithIt)
{
    Sheet sheet;
    sheet.grid(6, 6);
    ASSERT_TRUE(create(sheet.curves()));
    const std::vector<Created> made = createdGeometries(1);
    ASSERT_EQ(made.size(), 1u);

    // Strokes on the new mesh, which the undo of the first step takes away under them.
    const orvane::SubdivisionLevel &mesh = *kernel.Scene()->Geometries().last()->CurrentLevel();
    QVector<OrvaneCurve *> strokes;
    Sheet drawing(10, orvane::Matrix(), QStringLiteral("Drawing"));
    for (OrvaneCurve *curve : drawCell(drawing, {3.2f, 3.3f, 0}, 2.0f))
        strokes.append(curve);
    orvane::bindCurves(strokes, mesh, 0.5f);
    const QList<OrvaneCurve *> onMade(strokes.cbegin(), strokes.cend());
    EXPECT_EQ(onMade.first()->Geometry()->Name(), QStringLiteral("Sheet-Retopo"));
    ASSERT_TRUE(create(onMade));
    const QVector<orvane::Geometry *> all = kernel.Scene()->Geometries();
    ASSERT_EQ(all.size(), 4);
    EXPECT_EQ(all.last()->Name(), QStringLiteral("Sheet-Retopo-Retopo"));
    const Created second(all.last());

    for (int round = 0; round < 10; ++round) {
        ASSERT_TRUE(kernel.Undo());
        ASSERT_TRUE(kernel.Undo());
        EXPECT_EQ(onMade.first()->Geometry(), nullptr);
        ASSERT_EQ(kernel.Scene()->Geometries().size(), 2);
        ASSERT_TRUE(kernel.Redo());
        ASSERT_TRUE(kernel.Redo());
        ASSERT_EQ(kernel.Scene()->Geometries().size(), 4);
        EXPECT_TRUE(Created(kernel.Scene()->Geometries()[2]) == made[0]);
        EXPECT_TRUE(Created(kernel.Scene()->Geometries()[3]) == second);
    }
}

TEST_F(UndoRedo, aTurnedScaledSourceMakesNoDifference)
{
    std::mt19937 random(testSeed());
    for (int scene = 0; scene < 5; ++scene) {
        kernel.Undos().Clear();
        kernel.Scene()->Clear();
        Sheet sheet(16, randomPlacement(random));
        sheet.grid(6, 6, 1.5f);
        sheet.circle({8, 8, 0}, 3.3f, 60);
        sheet.wavy({2, 3, 0}, {14, 12, 0}, 50, 1.0f, 2.0f);
        ASSERT_TRUE(create(sheet.curves(), 0.1f));
        goRoundAndRound(10, 1, 1);
    }
}

TEST_F(UndoRedo, theActiveGeometryGoesBackAndForthToo)
{
    Sheet sheet;
    kernel.Scene()->SetActiveGeometry(sheet.geometry());
    drawCell(sheet, {2, 2, 0}, 2.0f);
    ASSERT_TRUE(create(sheet.curves()));
    const int made = kernel.Scene()->ActiveGeometry()->ID();
    EXPECT_NE(kernel.Scene()->ActiveGeometry(), sheet.geometry());
    ASSERT_TRUE(kernel.Undo());
    EXPECT_EQ(kernel.Scene()->ActiveGeometry(), sheet.geometry());
    ASSERT_TRUE(kernel.Redo());
    EXPECT_EQ(kernel.Scene()->ActiveGeometry()->ID(), made);
}

TEST_F(UndoRedo, anOperationThatMakesNothingLeavesTheHistoryAsItWas)
{
    Sheet sheet;
    const QList<OrvaneCurve *> cell = drawCell(sheet, {2, 2, 0}, 2.0f);
    ASSERT_TRUE(create(cell));
    ASSERT_TRUE(kernel.Undo());
    EXPECT_FALSE(create(cell.mid(0, 2)));
    EXPECT_TRUE(kernel.Redo());
    EXPECT_EQ(createdGeometries(1).size(), 1u);
}
