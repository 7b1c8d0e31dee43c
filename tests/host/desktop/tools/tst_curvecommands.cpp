// SPDX-License-Identifier: MIT
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/tools/curvecommands.h"
#include "host/desktop/tools/scenecurves.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>

using namespace orvane;

using Indices = QVector<int>;

// Three strokes and a loop on a sphere: 0 to 2 at heights 260, 360 and 460, 3 on the right.
class CurveCommandsTest : public ToolsTest
{
protected:
    CurveCommandsTest()
    {
        show(sphere(60, 120));
        for (const double y : {260.0, 360.0, 460.0})
            draw(line({480.0, y}, {700.0, y}));
        draw(circle({790.0, 360.0}, 40.0));
    }

    static Indices hidden()
    {
        Indices indices;
        const QVector<OrvaneCurve *> all = curves();
        for (int i = 0; i < all.size(); ++i) {
            if (all[i]->IsHidden())
                indices.append(i);
        }
        return indices;
    }
    static QVector<Vector> drawnPlaces(int index)
    {
        return placesOf(drawnPoints(shapeOf(*curve(index))));
    }
};

TEST_F(CurveCommandsTest, nothingSelectedIsNothingDone)
{
    expectNoTrace([&] {
        EXPECT_FALSE(deleteSelectedCurves());
        EXPECT_FALSE(duplicateSelectedCurves(context));
        EXPECT_FALSE(mirrorSelectedCurves(context, 0));
        EXPECT_FALSE(closeSelectedCurves(context));
        EXPECT_FALSE(openSelectedCurves(context));
        EXPECT_FALSE(reverseSelectedCurves(context));
        EXPECT_FALSE(resampleSelectedCurves(context));
        EXPECT_FALSE(smoothSelectedCurves(context));
        EXPECT_FALSE(joinSelectedCurves(context));
        EXPECT_FALSE(selectNoCurves());
        EXPECT_FALSE(hideSelectedCurves());
        EXPECT_FALSE(showAllCurves());
    });
}

TEST_F(CurveCommandsTest, everyStepIsCalledWhatTheUserDid)
{
    const auto last = [] {
        return Kernel()->Undos().UndoText().toStdString();
    };
    EXPECT_EQ(last(), "Draw Stroke");
    select({0, 1});
    EXPECT_TRUE(reverseSelectedCurves(context));
    EXPECT_EQ(last(), "Reverse Curves");
    EXPECT_TRUE(closeSelectedCurves(context));
    EXPECT_EQ(last(), "Close Curves");
    EXPECT_TRUE(openSelectedCurves(context));
    EXPECT_EQ(last(), "Open Curves");
    EXPECT_TRUE(mirrorSelectedCurves(context, 1));
    EXPECT_EQ(last(), "Mirror Curves");
    EXPECT_TRUE(smoothSelectedCurves(context));
    EXPECT_EQ(last(), "Smooth Curves");
    EXPECT_TRUE(hideSelectedCurves());
    EXPECT_EQ(last(), "Hide Curves");
    EXPECT_TRUE(showAllCurves());
    EXPECT_EQ(last(), "Show Curves");
    EXPECT_TRUE(duplicateSelectedCurves(context));
    EXPECT_EQ(last(), "Duplicate Curves");
    EXPECT_TRUE(deleteSelectedCurves());
    EXPECT_EQ(last(), "Delete Curve");
    take("erase");
    drag(line({480.0, 360.0}, {520.0, 360.0}));
    EXPECT_EQ(last(), "Erase");
    take("move");
    drag(line({600.0, 460.0}, {600.0, 470.0}));
    EXPECT_EQ(last(), "Move Points");
    take("section");
    drag({{500.0, 500.0}, {760.0, 520.0}});
    EXPECT_EQ(last(), "Section Line");
}

TEST_F(CurveCommandsTest, deleteTakesTheSelectedAway)
{
    select({0, 2});
    const QString kept = curve(1)->Name();
    expectOneStep([&] { EXPECT_TRUE(deleteSelectedCurves()); });
    ASSERT_EQ(curves().size(), 2);
    EXPECT_EQ(curve(0)->Name(), kept);
}

TEST_F(CurveCommandsTest, hiddenSelectedCurvesAreNotDeleted)
{
    select({0, 1});
    curve(0)->SetHidden(true);
    EXPECT_TRUE(deleteSelectedCurves());
    EXPECT_EQ(curves().size(), 3);
}

TEST_F(CurveCommandsTest, copiesLieBesideTheirCurvesAndAreSelected)
{
    select({1, 3});
    expectOneStep([&] { EXPECT_TRUE(duplicateSelectedCurves(context)); });
    ASSERT_EQ(curves().size(), 6);
    EXPECT_EQ(selected(), (Indices{4, 5}));
    EXPECT_TRUE(curve(5)->Closed());
    const double stretch = double(meanStretch(shapeOf(*curve(1))));
    EXPECT_NEAR(lengthOf(drawnPlaces(4)), lengthOf(drawnPlaces(1)), 4 * stretch);
    EXPECT_LT((drawnPlaces(4)[0] - drawnPlaces(1)[0]).Length(), float(6 * stretch));
    expectOneStep([&] { EXPECT_TRUE(duplicateSelectedCurves(context)); });
    EXPECT_EQ(curves().size(), 8);
    for (const OrvaneCurve *each : curves())
        expectEven(*each);
}

TEST_F(CurveCommandsTest, mirroringAddsPartners)
{
    select({3});
    for (int axis = 0; axis < 3; ++axis) {
        const int count = curves().size();
        if (axis == 1)
            continue; // the loop is its own partner there
        expectOneStep([&] { EXPECT_TRUE(mirrorSelectedCurves(context, axis)); });
        ASSERT_EQ(curves().size(), count + 1);
        const Vector a = curve(3)->PointAt(4).position;
        const Vector b = curve(count)->PointAt(4).position;
        EXPECT_LT((axis == 0 ? Vector(a.x + b.x, a.y - b.y, a.z - b.z)
                             : Vector(a.x - b.x, a.y - b.y, a.z + b.z))
                      .Length(),
                  0.03f);
        expectEven(*curve(count));
    }
    expectNoTrace([&] { EXPECT_FALSE(mirrorSelectedCurves(context, 1)); });
}

TEST_F(CurveCommandsTest, mirroringWhatEndsAtTheMiddleMakesOneCurve)
{
    draw(line({640.0, 200.0}, {750.0, 220.0}));
    select({4});
    const double before = lengthOf(drawnPlaces(4));
    expectOneStep([&] { EXPECT_TRUE(mirrorSelectedCurves(context, 0)); });
    ASSERT_EQ(curves().size(), 5);
    EXPECT_NEAR(lengthOf(drawnPlaces(4)), 2 * before, 0.02);
    expectEven(*curve(4));
}

TEST_F(CurveCommandsTest, openingAndClosingAreForThoseThatAreNot)
{
    select({2, 3});
    expectOneStep([&] { EXPECT_TRUE(closeSelectedCurves(context)); });
    EXPECT_TRUE(curve(2)->Closed());
    EXPECT_TRUE(curve(3)->Closed());
    expectNoTrace([&] { EXPECT_FALSE(closeSelectedCurves(context)); });
    expectOneStep([&] { EXPECT_TRUE(openSelectedCurves(context)); });
    EXPECT_FALSE(curve(2)->Closed());
    EXPECT_FALSE(curve(3)->Closed());
    expectNoTrace([&] { EXPECT_FALSE(openSelectedCurves(context)); });
}

TEST_F(CurveCommandsTest, reversingTwiceGivesThePointsBack)
{
    select({1, 3});
    const QVector<Vector> open = drawnPlaces(1);
    const QVector<Vector> closed = drawnPlaces(3);
    expectOneStep([&] { EXPECT_TRUE(reverseSelectedCurves(context)); });
    EXPECT_EQ(drawnPlaces(1).first(), open.last());
    EXPECT_EQ(drawnPlaces(3)[1], closed.last());
    EXPECT_TRUE(reverseSelectedCurves(context));
    EXPECT_EQ(drawnPlaces(1), open);
    EXPECT_EQ(drawnPlaces(3), closed);
}

TEST_F(CurveCommandsTest, resamplingFollowsTheSpacingOfTheSettings)
{
    select({1, 3});
    const int open = curve(1)->PointCount();
    const int closed = curve(3)->PointCount();
    context.settings.spacing *= 2.0f;
    expectOneStep([&] { EXPECT_TRUE(resampleSelectedCurves(context)); });
    EXPECT_NEAR(curve(1)->PointCount(), open / 2, 2);
    EXPECT_NEAR(curve(3)->PointCount(), closed / 2, 2);
    expectEven(*curve(1));
    expectEven(*curve(3));
}

TEST_F(CurveCommandsTest, joiningNeedsTwoOpenCurves)
{
    select({0, 3});
    expectNoTrace([&] { EXPECT_FALSE(joinSelectedCurves(context)); });
    select({0, 1, 2});
    expectNoTrace([&] { EXPECT_FALSE(joinSelectedCurves(context)); });
    select({0, 1});
    expectOneStep([&] { EXPECT_TRUE(joinSelectedCurves(context)); });
    EXPECT_EQ(curves().size(), 3);
    expectEven(*curve(0));
}

TEST_F(CurveCommandsTest, selectingAllNoneAndTheOthers)
{
    curve(2)->SetHidden(true);
    expectOneStep([&] { EXPECT_TRUE(selectAllCurves()); });
    EXPECT_EQ(selected(), (Indices{0, 1, 3}));
    expectNoTrace([&] { EXPECT_FALSE(selectAllCurves()); });
    expectOneStep([&] { EXPECT_TRUE(selectNoCurves()); });
    EXPECT_EQ(selected(), Indices());
    select({0});
    expectOneStep([&] { EXPECT_TRUE(invertCurveSelection()); });
    EXPECT_EQ(selected(), (Indices{1, 3}));
}

TEST_F(CurveCommandsTest, hidingAndShowing)
{
    select({1});
    expectOneStep([&] { EXPECT_TRUE(hideSelectedCurves()); });
    EXPECT_EQ(hidden(), (Indices{1}));
    expectOneStep([&] { EXPECT_TRUE(showAllCurves()); });
    EXPECT_EQ(hidden(), Indices());
    expectOneStep([&] { EXPECT_TRUE(hideUnselectedCurves()); });
    EXPECT_EQ(hidden(), (Indices{0, 2, 3}));
    expectOneStep([&] { EXPECT_TRUE(showAllCurves()); });
    EXPECT_EQ(hidden(), Indices());
}

TEST_F(CurveCommandsTest, curvesWithoutASurfaceCanStillBeDeletedAndHidden)
{
    Scene *scene = Kernel()->Scene();
    Geometry *geometry = scene->Geometries().first();
    scene->RemoveGeometry(geometry);
    delete geometry;
    select({0, 1});
    expectNoTrace([&] {
        EXPECT_FALSE(smoothSelectedCurves(context));
        EXPECT_FALSE(duplicateSelectedCurves(context));
        EXPECT_FALSE(mirrorSelectedCurves(context, 0));
        EXPECT_FALSE(joinSelectedCurves(context));
    });
    EXPECT_TRUE(hideSelectedCurves());
    EXPECT_TRUE(showAllCurves());
    EXPECT_TRUE(deleteSelectedCurves());
    EXPECT_EQ(curves().size(), 2);
}
