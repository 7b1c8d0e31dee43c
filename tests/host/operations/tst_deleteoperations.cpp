// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/deleteoperations.h>

#include <algorithm>
#include <limits>

using orvane::DeleteCurveOperation;
using orvane::DeleteGeometryOperation;
using orvane::Geometry;
using orvane::OrvaneCurve;

namespace {

class Deleting : public SampleScene
{
protected:
    // As the numbers of a curve are kept: how many, and the one.
    static QByteArray numberList(int id)
    {
        const int numbers[] = {1, id};
        return QByteArray(reinterpret_cast<const char *>(numbers), int(sizeof(numbers)));
    }

    orvane::Scene *scene = orvane::Kernel()->Scene();
};

} // namespace

TEST_F(Deleting, severalGeometriesInAnyOrderGoAndComeBackToTheirPlaces)
{
    std::vector<int> order{0, 1, 2};
    do {
        fill();
        const QVector<Geometry *> all = scene->Geometries();
        DeleteGeometryOperation operation({all[order[0]], all[order[1]], all[order[2]]});
        expectDoUndoRedo(operation, "Delete Geometry");
        EXPECT_TRUE(scene->Geometries().isEmpty());
        EXPECT_EQ(scene->ActiveGeometry(), nullptr);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Deleting, severalCurvesInAnyOrderGoAndComeBackToTheirPlaces)
{
    std::vector<int> order{0, 1, 2};
    do {
        fill();
        const QVector<OrvaneCurve *> all{net(), loop(), loose()};
        DeleteCurveOperation operation({all[order[0]], all[order[1]], all[order[2]]});
        expectDoUndoRedo(operation, "Delete Curve");
        EXPECT_EQ(scene->NodeCount(), 3);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Deleting, theActiveGeometryIsTheOneBeforeItMeanwhile)
{
    DeleteGeometryOperation operation({triangle()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(scene->ActiveGeometry()->Name(), QStringLiteral("Tetrahedron"));
    EXPECT_EQ(scene->DrawingSurface(), quad());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(scene->ActiveGeometry(), triangle());
    EXPECT_EQ(scene->DrawingSurface(), triangle());
}

TEST_F(Deleting, aCurveOnADeletedGeometryIsBoundToNothingUntilItComesBack)
{
    DeleteGeometryOperation operation({quad(), triangle()});
    const OrvaneCurve *curve = net();
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(curve->Geometry(), nullptr);
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(curve->Geometry(), quad());
}

TEST_F(Deleting, geometriesAndCurvesTogetherAreOneStep)
{
    const QByteArray before = sceneBytes();
    DeleteCurveOperation curves({loop(), net()});
    DeleteGeometryOperation geometries({quad(), triangle()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&curves, true, false));
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&geometries, true, true));
    EXPECT_EQ(scene->NodeCount(), 2);
    const QByteArray after = sceneBytes();
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    ASSERT_TRUE(orvane::Kernel()->Redo());
    EXPECT_TRUE(sceneBytes() == after);
}

TEST_F(Deleting, oneNamedTwiceIsDeletedOnce)
{
    DeleteGeometryOperation operation({quad(), triangle(), quad(), nullptr});
    expectDoUndoRedo(operation, "Delete Geometry");
    EXPECT_EQ(scene->Geometries().size(), 1);
}

TEST_F(Deleting, aNodeThatIsNotInTheSceneIsRefused)
{
    const LogCatcher logs;
    OrvaneCurve stranger;
    DeleteCurveOperation operation({net(), &stranger});
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(Deleting, nothingIsRefused)
{
    const LogCatcher logs;
    DeleteCurveOperation operation(QVector<OrvaneCurve *>{});
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(Deleting, aGeometryThatCouldNotComeBackIsRefused)
{
    const LogCatcher logs;
    const float nowhere = std::numeric_limits<float>::infinity();
    quad()->CurrentLevel()->SetVertexPosition(1, {nowhere, 0, 0});
    DeleteGeometryOperation operation({triangle(), quad()});
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(Deleting, aNumberTakenMeanwhileKeepsTheNodeOutUntilItIsFree)
{
    const int number = net()->ID();
    DeleteCurveOperation operation({loop(), net()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    const LogCatcher logs;
    quad()->SetID(number);
    const QByteArray meanwhile = sceneBytes();
    EXPECT_FALSE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == meanwhile);
    EXPECT_EQ(logs.count(), 1);
    quad()->SetID(1000);
    EXPECT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(scene->NodeCount(), 6);
}

TEST_F(Deleting, whatWasKeptOfACurveIsNoGeometry)
{
    DeleteCurveOperation operation({net()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    QVector<orvane::UndoStep> steps = orvane::Kernel()->Undos().Steps();
    steps[0][0].className = QStringLiteral("DeleteGeometryOperation");
    orvane::Kernel()->Undos().Restore(steps, 1);
    const LogCatcher logs;
    const QByteArray before = sceneBytes();
    EXPECT_FALSE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(Deleting, twoNodesKeptWithOneNumberStayOut)
{
    const QByteArray one = numberList(net()->ID());
    const QByteArray other = numberList(loop()->ID());
    DeleteCurveOperation operation({net(), loop()});
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    QVector<orvane::UndoStep> steps = orvane::Kernel()->Undos().Steps();
    QByteArray &bytes = steps[0][0].bytes;
    ASSERT_EQ(bytes.count(other), 1);
    bytes.replace(other, one);
    orvane::Kernel()->Undos().Restore(steps, 1);
    const LogCatcher logs;
    const QByteArray before = sceneBytes();
    EXPECT_FALSE(orvane::Kernel()->Undo());
    EXPECT_TRUE(sceneBytes() == before);
    EXPECT_EQ(logs.count(), 1);
}
