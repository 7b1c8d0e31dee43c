// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/tools/scenecurves.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QLineF>

#include <cmath>

using namespace orvane;

namespace {

double lengthOf(const OrvaneCurve &curve)
{
    return orvane::lengthOf(placesOf(curve.Points()));
}

// How much the curve turns in all, in radians.
double bending(const OrvaneCurve &curve)
{
    double sum = 0.0;
    for (int i = 1; i + 1 < curve.PointCount(); ++i) {
        const Vector a = Normalized(curve.PointAt(i).position - curve.PointAt(i - 1).position);
        const Vector b = Normalized(curve.PointAt(i + 1).position - curve.PointAt(i).position);
        sum += std::acos(std::min(1.0, double(Dot(a, b))));
    }
    return sum;
}

double apartFrom(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}

} // namespace

// Erase, extend, join, move, smooth: over a sphere with three strokes across.
class EditToolsTest : public ToolsTest
{
protected:
    EditToolsTest()
    {
        show(sphere(60, 120));
        for (const double y : {260.0, 360.0, 460.0})
            draw(line({480.0, y}, {800.0, y}));
    }

    QPointF endOf(int index, bool last) const
    {
        const OrvaneCurve &each = *curve(index);
        return at(each.PointAt(last ? each.PointCount() - 1 : 0).position);
    }
};

TEST_F(EditToolsTest, erasingAcrossTheMiddleLeavesTwoPieces)
{
    take("erase");
    const double before = lengthOf(*curve(1));
    expectOneStep([&] { drag(line({640.0, 320.0}, {640.0, 400.0})); });
    ASSERT_EQ(curves().size(), 4);
    EXPECT_EQ(curve(3)->Name(), QStringLiteral("curve 4"));
    EXPECT_LT(lengthOf(*curve(1)) + lengthOf(*curve(3)), before - 0.1);
    for (const int index : {1, 3}) {
        expectEven(*curve(index));
        for (const CurvePoint &point : curve(index)->Points()) {
            EXPECT_GT(std::abs(at(point.position).x() - 640.0), context.settings.brushRadius - 2.0);
        }
    }
}

TEST_F(EditToolsTest, erasingAllOfACurveDeletesIt)
{
    take("erase");
    const QString kept = curve(2)->Name();
    expectOneStep([&] { drag(line({440.0, 360.0}, {840.0, 360.0})); });
    ASSERT_EQ(curves().size(), 2);
    EXPECT_EQ(curve(1)->Name(), kept);
}

TEST_F(EditToolsTest, oneRubOverSeveralCurvesIsOneStep)
{
    take("erase");
    expectOneStep([&] { drag(line({600.0, 200.0}, {600.0, 520.0}, 7)); });
    EXPECT_EQ(curves().size(), 6);
}

TEST_F(EditToolsTest, erasingOpensAClosedCurve)
{
    const OrvaneCurve *loop = draw(circle({640.0, 360.0}, 40.0));
    ASSERT_TRUE(loop->Closed());
    context.settings.brushRadius = 8.0;
    take("erase");
    expectOneStep([&] { click({640.0, 400.0}); });
    ASSERT_EQ(curves().size(), 4);
    EXPECT_FALSE(curve(3)->Closed());
    expectEven(*curve(3));
}

TEST_F(EditToolsTest, piecesOfASelectedCurveAreSelected)
{
    select({1});
    take("erase");
    click({640.0, 360.0});
    EXPECT_EQ(selected(), (QVector<int>{1, 3}));
}

TEST_F(EditToolsTest, rubbingWhereNoCurveIsLeavesNoTrace)
{
    take("erase");
    expectNoTrace([&] { drag(line({500.0, 310.0}, {780.0, 310.0})); });
    expectNoTrace([&] { drag(line({2.0, 2.0}, {60.0, 2.0})); });
}

TEST_F(EditToolsTest, whatWouldGoIsShownAndEscapeKeepsIt)
{
    take("erase");
    expectNoTrace([&] {
        press({640.0, 330.0});
        moveTo({640.0, 400.0});
        EXPECT_EQ(box.Lines().size(), 1);
        EXPECT_EQ(box.Shapes().size(), 1);
        box.Cancel();
        EXPECT_TRUE(box.Lines().isEmpty());
        release({640.0, 400.0});
    });
}

TEST_F(EditToolsTest, extendingGoesOnFromTheEndThatIsTaken)
{
    take("extend");
    for (const bool last : {true, false}) {
        const double before = lengthOf(*curve(1));
        const Vector other =
            last ? curve(1)->PointAt(0).position : curve(1)->Points().last().position;
        const QPointF end = endOf(1, last);
        const QPointF to = end + QPointF(last ? 60.0 : -60.0, 20.0);
        expectOneStep([&] { drag(line(end + QPointF(3, 2), to)); });
        ASSERT_EQ(curves().size(), 3);
        EXPECT_GT(lengthOf(*curve(1)), before + 0.1);
        const Vector still =
            last ? curve(1)->PointAt(0).position : curve(1)->Points().last().position;
        EXPECT_LT((still - other).Length(), 1e-6f);
        EXPECT_LT(apartFrom(endOf(1, last), to), 3.0);
        expectEven(*curve(1));
    }
}

TEST_F(EditToolsTest, extendingBackToTheOtherEndCloses)
{
    take("extend");
    const QPointF from = endOf(1, true);
    const QPointF to = endOf(1, false);
    const QPointF below(0, 60);
    const QVector<QPointF> way =
        line(from, from + below) + line(from + below, to + below) + line(to + below, to);
    expectOneStep([&] { drag(way); });
    ASSERT_EQ(curves().size(), 3);
    EXPECT_TRUE(curve(1)->Closed());
    expectEven(*curve(1));
}

TEST_F(EditToolsTest, extendingAwayFromAnEndIsRefused)
{
    take("extend");
    expectNoTrace([&] { drag(line({640.0, 360.0}, {640.0, 420.0})); });
    EXPECT_EQ(context.messages.size(), 1);
}

TEST_F(EditToolsTest, endUnderThePointerIsMarked)
{
    take("extend");
    moveTo(endOf(0, true) + QPointF(4, 4));
    EXPECT_EQ(box.HoveredCurve(), curve(0));
    EXPECT_EQ(box.Lines().size(), 1);
    moveTo({640.0, 300.0});
    EXPECT_EQ(box.HoveredCurve(), nullptr);
}

TEST_F(EditToolsTest, extendGivenUpLeavesNoTrace)
{
    take("extend");
    expectNoTrace([&] {
        press(endOf(1, true));
        moveTo(endOf(1, true) + QPointF(50, 0));
        press(endOf(1, true), Qt::RightButton);
        release(endOf(1, true));
    });
}

TEST_F(EditToolsTest, joiningFromEndToEndMakesOneCurve)
{
    for (const bool fromLast : {true, false}) {
        for (const bool toLast : {true, false}) {
            take("join");
            const double before = lengthOf(*curve(0)) + lengthOf(*curve(1));
            const QPointF from = endOf(0, fromLast);
            const QPointF to = endOf(1, toLast);
            const QPointF start = endOf(0, !fromLast);
            expectOneStep([&] { drag({from, (from + to) / 2, to}); });
            ASSERT_EQ(curves().size(), 2);
            EXPECT_GT(lengthOf(*curve(0)), before);
            expectEven(*curve(0));
            EXPECT_LT(apartFrom(endOf(0, !fromLast), start), 0.1);
            Kernel()->Undo();
        }
    }
}

TEST_F(EditToolsTest, joiningTheEndsOfOneCurveClosesIt)
{
    take("join");
    expectOneStep([&] { drag({endOf(0, true), endOf(0, false)}); });
    EXPECT_EQ(curves().size(), 3);
    EXPECT_TRUE(curve(0)->Closed());
}

TEST_F(EditToolsTest, enterJoinsTwoSelectedCurves)
{
    take("join");
    expectNoTrace([&] { box.Finish(); });
    EXPECT_EQ(context.messages.size(), 1);
    select({0, 2});
    expectOneStep([&] { box.Finish(); });
    EXPECT_EQ(curves().size(), 2);
}

TEST_F(EditToolsTest, joinThatReachesNoEndLeavesNoTrace)
{
    take("join");
    expectNoTrace([&] { drag({endOf(0, true), QPointF(640, 310)}); });
    expectNoTrace([&] { click(endOf(0, true)); });
    expectNoTrace([&] {
        press(endOf(0, true));
        moveTo(endOf(1, true));
        box.Cancel();
        release(endOf(1, true));
    });
}

TEST_F(EditToolsTest, movingPullsThePointsNearTheHandMost)
{
    take("move");
    const QVector<Vector> before = placesOf(curve(1)->Points());
    const QPointF grip = at(before[before.size() / 2]);
    press(grip);
    moveTo(grip + QPointF(0, 30));
    EXPECT_EQ(box.Lines().size(), 1);
    expectOneStep([&] { release(grip + QPointF(0, 40)); });
    ASSERT_EQ(curves().size(), 3);
    const QVector<Vector> after = placesOf(curve(1)->Points());
    EXPECT_LT((after.first() - before.first()).Length(), 1e-6f);
    EXPECT_LT((after.last() - before.last()).Length(), 1e-6f);
    const Vector pulled = nearestOnLine(after, before[before.size() / 2]).place;
    EXPECT_GT((pulled - before[before.size() / 2]).Length(), 0.03f);
    double lowest = 0.0;
    for (const Vector &place : after)
        lowest = std::max(lowest, at(place).y());
    EXPECT_NEAR(lowest, grip.y() + 40.0, 1.5) << "the curve is where the hand is";
    expectEven(*curve(1));
}

TEST_F(EditToolsTest, shiftMovesAllOfTheCurve)
{
    take("move");
    const QPointF start = endOf(1, false);
    const QPointF end = endOf(1, true);
    expectOneStep([&] { drag({{640.0, 360.0}, {640.0, 390.0}}, Qt::ShiftModifier); });
    EXPECT_GT(endOf(1, false).y(), start.y() + 15.0);
    EXPECT_GT(endOf(1, true).y(), end.y() + 15.0);
    expectEven(*curve(1));
}

TEST_F(EditToolsTest, movingACurveOntoAnotherNeverTouchesIt)
{
    take("move");
    expectOneStep([&] { drag({{640.0, 360.0}, {640.0, 460.0}}, Qt::ShiftModifier); });
    expectOneStep([&] { drag({{600.0, 260.0}, {600.0, 461.0}}); });
}

TEST_F(EditToolsTest, closedCurveMovesAtItsSeamToo)
{
    draw(circle({640.0, 360.0}, 40.0));
    const QPointF seam = at(curve(3)->PointAt(0).position);
    take("move");
    expectOneStep([&] { drag({seam, seam + (seam - QPointF(640, 360)) * 0.3}); });
    EXPECT_TRUE(curve(3)->Closed());
}

TEST_F(EditToolsTest, moveBesideCurvesAndGivenUpLeavesNoTrace)
{
    take("move");
    expectNoTrace([&] { drag({{640.0, 310.0}, {640.0, 330.0}}); });
    expectNoTrace([&] { click({640.0, 360.0}); });
    expectNoTrace([&] {
        press({640.0, 360.0});
        moveTo({640.0, 380.0});
        box.Cancel();
        release({640.0, 380.0});
    });
}

TEST_F(EditToolsTest, curveUnderThePointerIsHighlighted)
{
    take("move");
    moveTo({640.0, 262.0});
    EXPECT_EQ(box.HoveredCurve(), curve(0));
    box.Leave();
    EXPECT_EQ(box.HoveredCurve(), nullptr);
}

TEST_F(EditToolsTest, brushSmoothsWhatItGoesOver)
{
    QVector<QPointF> wavy;
    for (int i = 0; i <= 300; ++i)
        wavy.append({490.0 + i, 310.0 + 8.0 * std::sin(i * 0.25)});
    draw(wavy);
    const double before = bending(*curve(3));
    const QVector<Vector> points = placesOf(curve(3)->Points());
    take("smooth");
    expectOneStep([&] {
        QVector<QPointF> way;
        for (int i = 0; i < 6; ++i)
            way += line({500.0, 310.0}, {640.0, 310.0}) + line({640.0, 310.0}, {500.0, 310.0});
        drag(way);
    });
    EXPECT_LT(bending(*curve(3)), 0.8 * before);
    EXPECT_LT(nearestOnLine(placesOf(curve(3)->Points()), points.last()).distance, 1e-5f)
        << "the end the brush never came to stays";
    expectEven(*curve(3));
}

TEST_F(EditToolsTest, enterSmoothsTheSelectedCurves)
{
    QVector<QPointF> wavy;
    for (int i = 0; i <= 300; ++i)
        wavy.append({490.0 + i, 310.0 + 8.0 * std::sin(i * 0.25)});
    draw(wavy);
    const double before = bending(*curve(3));
    take("smooth");
    expectNoTrace([&] { box.Finish(); });
    select({3});
    expectOneStep([&] { box.Finish(); });
    EXPECT_LT(bending(*curve(3)), before);
    expectEven(*curve(3));
}

TEST_F(EditToolsTest, smoothingGivenUpLeavesNoTrace)
{
    take("smooth");
    expectNoTrace([&] {
        press({640.0, 360.0});
        moveTo({680.0, 360.0});
        EXPECT_EQ(box.Lines().size(), 1);
        box.Cancel();
        release({680.0, 360.0});
    });
}

TEST_F(EditToolsTest, curveThatGoesAwayUnderTheHandIsLeftAlone)
{
    for (const char *tool : {"erase", "extend", "join", "move", "smooth"}) {
        draw(line({480.0, 310.0}, {800.0, 310.0}));
        take(tool);
        const QPointF grip = endOf(3, true);
        press(grip);
        moveTo(grip - QPointF(20, 5));
        ASSERT_TRUE(Kernel()->Undo());
        moveTo(grip - QPointF(30, 5));
        release(grip - QPointF(30, 5));
        EXPECT_EQ(curves().size(), 3) << tool;
        expectSound();
    }
}

// A flat cake, thinner than the brush is wide.
class ThinPartTest : public ToolsTest
{
protected:
    ThinPartTest()
    {
        show(sphere(60, 120), Matrix::Scaling({1.0f, 1.0f, 0.02f}));
        draw(line({480.0, 360.0}, {800.0, 360.0}));
    }
};

TEST_F(ThinPartTest, brushesSpareTheFarSide)
{
    const double depth = context.camera.PivotDepth();
    ASSERT_GT(context.settings.brushRadius * context.camera.PixelSize(depth), 0.04);
    context.camera.LookFrom(StandardView::Back);
    for (const char *tool : {"erase", "smooth"}) {
        take(tool);
        expectNoTrace([&] { drag(line({640.0, 300.0}, {640.0, 420.0})); });
    }
    context.camera.LookFrom(StandardView::Front);
    take("erase");
    expectOneStep([&] { drag(line({640.0, 300.0}, {640.0, 420.0})); });
    EXPECT_EQ(curves().size(), 2);
}

// A curve of a few far points, as files bring them.
class CoarseCurveTest : public ToolsTest
{
protected:
    CoarseCurveTest()
    {
        show(gridOfQuads(10, 10));
        const SurfaceLocator &surface = *context.VisibleSurfaces().first();
        auto *curve = new OrvaneCurve; // the scene's
        for (const Vector &corner :
             {Vector(1, 1, 0), Vector(9, 1, 0), Vector(9, 9, 0), Vector(1, 9, 0)})
            curve->AppendPoint(onSurface(surface, corner));
        curve->SetName(QStringLiteral("curve 1"));
        Kernel()->Scene()->AddCurve(curve);
    }
};

TEST_F(CoarseCurveTest, keepsItsCornersWhenAPartIsErased)
{
    take("erase");
    expectOneStep([&] { click(at({9.0f, 5.0f, 0.0f})); });
    ASSERT_EQ(curves().size(), 2);
    for (const OrvaneCurve *each : curves())
        EXPECT_EQ(each->PointCount(), 3);
}

TEST_F(CoarseCurveTest, isExtendedWithoutLosingItsCorners)
{
    take("extend");
    expectOneStep([&] { drag(line(at({1, 9, 0}), at({1, 6, 0}))); });
    ASSERT_EQ(curves().size(), 1);
    for (int i = 0; i < 4; ++i) {
        const Vector corner(i == 1 || i == 2 ? 9 : 1, i < 2 ? 1 : 9, 0);
        EXPECT_LT((curve(0)->PointAt(i).position - corner).Length(), 1e-4f);
    }
}
