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
#include <orvane/operations/addoperations.h>

#include <limits>

using orvane::AddCurveOperation;
using orvane::AddGeometryOperation;
using orvane::Geometry;
using orvane::OrvaneCurve;

namespace {

Geometry *newGeometry()
{
    auto *geometry = new Geometry;
    geometry->AddLevel(gridOfQuads(2, 3));
    geometry->AddLevel(gridOfTriangles(2, 3));
    geometry->SetCurrentLevel(0);
    return geometry;
}

class Adding : public SampleScene
{
protected:
    orvane::Scene *scene = orvane::Kernel()->Scene();
};

} // namespace

TEST_F(Adding, aGeometryGoesAndComesBack)
{
    AddGeometryOperation operation(newGeometry());
    expectDoUndoRedo(operation, "Add Geometry");
}

TEST_F(Adding, aCurveGoesAndComesBack)
{
    auto *curve = new OrvaneCurve;
    curve->SetPoints(net()->Points());
    AddCurveOperation operation(curve);
    expectDoUndoRedo(operation, "Add Curve");
}

TEST_F(Adding, aGeometryIsTheSameObjectAtTheEndAndTheActiveOne)
{
    Geometry *geometry = newGeometry();
    AddGeometryOperation operation(geometry);
    EXPECT_FALSE(scene->Contains(geometry));
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(scene->NodeAt(scene->NodeCount() - 1), geometry);
    EXPECT_EQ(scene->ActiveGeometry(), geometry);
    EXPECT_EQ(scene->DrawingSurface(), triangle());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(scene->ActiveGeometry(), triangle());
}

TEST_F(Adding, aCurveLeavesTheActiveGeometryAsItIs)
{
    auto *curve = new OrvaneCurve;
    AddCurveOperation operation(curve);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(scene->NodeAt(scene->NodeCount() - 1), curve);
    EXPECT_EQ(scene->ActiveGeometry(), triangle());
}

TEST_F(Adding, numbersAndLevelsComeBackWithAGeometry)
{
    Geometry *geometry = newGeometry();
    AddGeometryOperation operation(geometry);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    QVector<int> numbers;
    for (const orvane::Node *part : geometry->Nodes())
        numbers.append(part->ID());
    ASSERT_TRUE(orvane::Kernel()->Undo());
    ASSERT_TRUE(orvane::Kernel()->Redo());
    Geometry *back = scene->Geometries().last();
    ASSERT_EQ(back->LevelCount(), 2);
    EXPECT_EQ(back->CurrentLevel(), back->Level(0));
    QVector<int> numbersNow;
    for (const orvane::Node *part : back->Nodes())
        numbersNow.append(part->ID());
    EXPECT_EQ(numbersNow, numbers);
    EXPECT_FALSE(numbers.contains(0));
}

TEST_F(Adding, curvesOnAGeometryFindItAgain)
{
    Geometry *geometry = newGeometry();
    AddGeometryOperation addGeometry(geometry);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&addGeometry, true, false));
    auto *curve = new OrvaneCurve;
    curve->AppendPoint(
        orvane::CurvePoint(orvane::SurfacePoint(*geometry->Level(1), 2, 0.5f, 0.25f)));
    AddCurveOperation addCurve(curve);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&addCurve, true, false));
    for (int i = 0; i < 2; ++i)
        ASSERT_TRUE(orvane::Kernel()->Undo());
    for (int i = 0; i < 2; ++i)
        ASSERT_TRUE(orvane::Kernel()->Redo());
    const auto *back = dynamic_cast<OrvaneCurve *>(scene->NodeAt(scene->NodeCount() - 1));
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->Geometry(), scene->Geometries().last());
    EXPECT_NE(back->Geometry(), nullptr);
}

TEST_F(Adding, aNodeOfTheSceneIsNotTakenOver)
{
    {
        AddGeometryOperation operation(quad());
        expectRefused(operation);
    }
    EXPECT_EQ(scene->NodeCount(), 6); // the operation did not free it
}

TEST_F(Adding, aCurveThatIsNowhereIsRefusedAndFreed)
{
    const LogCatcher logs;
    auto *curve = new OrvaneCurve;
    const float nowhere = std::numeric_limits<float>::quiet_NaN();
    curve->AppendPoint(orvane::CurvePoint(orvane::Vector(0, nowhere, 0)));
    AddCurveOperation operation(curve);
    expectRefused(operation);
    EXPECT_EQ(logs.count(), 1);
}

TEST_F(Adding, aFailureInTheMiddleOfAStepTakesTheWholeStepBack)
{
    AddCurveOperation first(new OrvaneCurve);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&first, true, false));
    AddCurveOperation second(new OrvaneCurve);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&second, true, true));
    const QByteArray after = sceneBytes();
    orvane::Node *last = scene->NodeAt(scene->NodeCount() - 1);
    orvane::Node *firstAdded = scene->NodeAt(scene->NodeCount() - 2);
    ASSERT_TRUE(dynamic_cast<OrvaneCurve *>(last));
    const LogCatcher logs;
    scene->Remove(firstAdded); // behind the history's back
    EXPECT_FALSE(orvane::Kernel()->Undo());
    scene->Restore(firstAdded, {6, -1});
    EXPECT_TRUE(sceneBytes() == after);
    EXPECT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(scene->NodeCount(), 6);
}
