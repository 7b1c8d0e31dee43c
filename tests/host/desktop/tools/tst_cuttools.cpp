// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QElapsedTimer>

#include <cmath>

using namespace orvane;

namespace {

const double Pi = 3.14159265358979;

double lengthOf(const OrvaneCurve &curve)
{
    return orvane::lengthOf(placesOf(curve.Points()));
}

} // namespace

// The section line and the loop.
class CutToolsTest : public ToolsTest
{};

TEST_F(CutToolsTest, sectionBetweenTwoPlacesIsTheLineSeenBetweenThem)
{
    show(sphere(60, 120));
    take("section");
    const QPointF from = at({-0.5f, -0.1f, 0.86f});
    const QPointF to = at({0.5f, 0.4f, 0.77f});
    expectOneStep([&] { drag({from, to}); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_FALSE(curve(0)->Closed());
    expectEven(*curve(0));
    const QPointF way = to - from;
    for (const CurvePoint &point : curve(0)->Points()) {
        const QPointF seen = at(point.position) - from;
        const double aside =
            (seen.x() * way.y() - seen.y() * way.x()) / std::hypot(way.x(), way.y());
        EXPECT_LT(std::abs(aside), 1.0) << "pixels off the line";
        EXPECT_GT(point.position.z, 0.0f);
    }
}

TEST_F(CutToolsTest, sectionAllAcrossTheModelIsTheWholeCut)
{
    show(sphere(60, 120));
    take("section");
    expectOneStep([&] { drag({{200.0, 360.0}, {1080.0, 360.0}}); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_TRUE(curve(0)->Closed());
    EXPECT_NEAR(lengthOf(*curve(0)), 2 * Pi, 0.02);
    expectEven(*curve(0));
}

TEST_F(CutToolsTest, shiftTakesTheWholeLoopUnderTheLineOnly)
{
    show(torus(2.0f, 0.5f, 96, 32));
    take("section");
    const QPointF from = at({1.6f, 0.01f, 0.3f});
    const QPointF to = at({2.4f, 0.01f, 0.3f});
    press(from, Qt::LeftButton, Qt::ShiftModifier);
    moveTo(to, Qt::ShiftModifier);
    EXPECT_EQ(box.Lines().size(), 1);
    EXPECT_EQ(box.Shapes().size(), 1);
    expectOneStep([&] { release(to, Qt::LeftButton, Qt::ShiftModifier); });
    ASSERT_EQ(curves().size(), 1) << "the other side of the ring is cut by the plane, too";
    EXPECT_TRUE(curve(0)->Closed());
    EXPECT_NEAR(lengthOf(*curve(0)), Pi, 0.05);
    EXPECT_GT(curve(0)->PointAt(0).position.x, 0.0f);
}

TEST_F(CutToolsTest, sectionNeverLiesOnACurveItCrosses)
{
    show(sphere(60, 120));
    take("section");
    for (int i = 0; i < 6; ++i) {
        const double angle = i * Pi / 6;
        const QPointF way(300 * std::cos(angle), 300 * std::sin(angle));
        expectOneStep([&] { drag({QPointF(640, 360) - way, QPointF(640, 360) + way}); });
    }
    EXPECT_EQ(curves().size(), 6);
}

TEST_F(CutToolsTest, sectionAlongAnotherTouchesItNowhere)
{
    show(sphere(60, 120));
    take("section");
    drag({{560.0, 360.0}, {720.0, 360.0}});
    for (const double left : {500.0, 560.0, 600.0, 640.0})
        expectOneStep([&] { drag({{left, 360.0}, {left + 180.0, 360.0}}); });
    EXPECT_EQ(curves().size(), 5);
}

TEST_F(CutToolsTest, sameSectionAgainIsNotAddedTwice)
{
    show(sphere(60, 120));
    take("section");
    drag({{340.0, 360.0}, {940.0, 360.0}});
    expectNoTrace([&] { drag({{340.0, 360.0}, {940.0, 360.0}}); });
    EXPECT_EQ(context.messages.size(), 1);
}

TEST_F(CutToolsTest, sectionPartnerAcrossTheMirror)
{
    show(sphere(60, 120));
    take("section");
    context.settings.mirrorAxis = 0;
    expectOneStep([&] { drag({at({0.2f, 0.1f, 0.97f}), at({0.5f, 0.5f, 0.7f})}); });
    ASSERT_EQ(curves().size(), 2);
    EXPECT_EQ(curve(0)->PointCount(), curve(1)->PointCount());
    EXPECT_LT(curve(0)->PointAt(5).position.x * curve(1)->PointAt(5).position.x, 0.0f);
}

TEST_F(CutToolsTest, clickAndEscapeCutNothing)
{
    show(sphere(40, 80));
    take("section");
    expectNoTrace([&] { click({640.0, 360.0}); });
    expectNoTrace([&] {
        press({300.0, 360.0});
        moveTo({900.0, 360.0});
        box.Cancel();
        EXPECT_TRUE(box.Lines().isEmpty());
        EXPECT_TRUE(box.Shapes().isEmpty());
        release({900.0, 360.0});
    });
}

TEST_F(CutToolsTest, hoveringProposesTheLoopThatAClickAdds)
{
    show(torus(2.0f, 0.5f, 96, 32));
    take("loop");
    const QPointF pixel = at({1.4f, 1.4f, 0.5f});
    moveTo(pixel);
    ASSERT_EQ(box.Lines().size(), 1);
    const QVector<Vector> proposed = box.Lines().first().places;
    expectOneStep([&] { click(pixel); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_EQ(placesOf(curve(0)->Points()), proposed);
    EXPECT_TRUE(curve(0)->Closed());
    EXPECT_NEAR(lengthOf(*curve(0)), Pi, 0.06);
    expectEven(*curve(0));
    box.Leave();
    EXPECT_TRUE(box.Lines().isEmpty());
}

TEST_F(CutToolsTest, dragAlongALimbLaysALoopSquareToIt)
{
    show(torus(2.0f, 0.5f, 96, 32));
    take("loop");
    const Vector from(2.0f, -0.2f, 0.5f);
    const Vector to(2.0f, 0.4f, 0.5f);
    press(at(from));
    moveTo(at(to));
    EXPECT_EQ(box.Lines().size(), 1);
    expectOneStep([&] { release(at(to)); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_TRUE(curve(0)->Closed());
    expectEven(*curve(0));
    for (const CurvePoint &point : curve(0)->Points())
        EXPECT_NEAR(point.position.y, 0.1f, 0.05f);
}

TEST_F(CutToolsTest, loopIsNotAddedTwice)
{
    show(torus(2.0f, 0.5f, 96, 32));
    take("loop");
    const QPointF pixel = at({1.4f, 1.4f, 0.5f});
    click(pixel);
    expectNoTrace([&] { click(pixel); });
    EXPECT_EQ(context.messages.size(), 1);
    expectOneStep([&] { click(at({1.3f, 1.5f, 0.5f})); });
}

TEST_F(CutToolsTest, loopOfAThinLimbIsStillRound)
{
    show(torus(2.0f, 0.02f, 96, 32));
    take("loop");
    click(at({1.41f, 1.41f, 0.02f}));
    ASSERT_EQ(curves().size(), 1);
    EXPECT_GE(curve(0)->DrawnPointCount(), 12);
    expectSound();
}

TEST_F(CutToolsTest, loopBesideTheMeshOrOnASheetIsNone)
{
    show(gridOfQuads(8, 8));
    take("loop");
    expectNoTrace([&] { click({4.0, 4.0}); });
    expectNoTrace([&] { click(at({4.3f, 4.3f, 0.0f})); });
    EXPECT_EQ(context.messages.size(), 2);
    expectNoTrace([&] {
        press(at({4.3f, 4.3f, 0.0f}));
        moveTo(at({5.3f, 4.3f, 0.0f}));
        box.Cancel();
    });
}

TEST_F(CutToolsTest, proposingALoopIsFastEnoughForTheHand)
{
    show(sphere(170, 170)); // 57,460 triangles
    take("loop");
    moveTo({640.0, 360.0});
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 10; ++i)
        moveTo({600.0 + 3 * i, 300.0});
    const double each = double(timer.nsecsElapsed()) / 1e7;
    std::printf("%.1f ms for a proposal\n", each);
    EXPECT_EQ(box.Lines().size(), 1);
    EXPECT_LT(each, double(timeLimit(200)));
}

TEST_F(CutToolsTest, meshThatMovedIsCutWhereItIs)
{
    Geometry *geometry = show(sphere(60, 120));
    take("section");
    drag({{200.0, 360.0}, {1080.0, 360.0}});
    const double before = lengthOf(*curve(0));
    ASSERT_TRUE(geometry->Placement()->SetWorldMatrix(Matrix::Scaling({1.0f, 1.0f, 0.5f})));
    for (OrvaneCurve *each : curves()) {
        Kernel()->Scene()->RemoveCurve(each);
        delete each;
    }
    drag({{200.0, 360.0}, {1080.0, 360.0}});
    ASSERT_EQ(curves().size(), 1);
    EXPECT_LT(lengthOf(*curve(0)), 0.85 * before);
    expectSound();
}
