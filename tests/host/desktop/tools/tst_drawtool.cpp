// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using namespace orvane;

class DrawToolTest : public ToolsTest
{
protected:
    // Of the first curve that has it: how far the farthest of its points is from the other's line.
    static float farthest(const OrvaneCurve &from, const OrvaneCurve &to)
    {
        float most = 0.0f;
        for (const CurvePoint &point : from.Points())
            most = std::max(most, nearestOnLine(placesOf(to.Points()), point.position).distance);
        return most;
    }

    // Do the two cross between their points, going by the xy plane?
    static int crossings(const OrvaneCurve &a, const OrvaneCurve &b)
    {
        const auto side = [](const Vector &p, const Vector &q, const Vector &r) {
            return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x);
        };
        int count = 0;
        for (int i = 0; i + 1 < a.PointCount(); ++i) {
            for (int k = 0; k + 1 < b.PointCount(); ++k) {
                const Vector p = a.PointAt(i).position, q = a.PointAt(i + 1).position;
                const Vector r = b.PointAt(k).position, s = b.PointAt(k + 1).position;
                count += side(p, q, r) * side(p, q, s) < 0 && side(r, s, p) * side(r, s, q) < 0;
            }
        }
        return count;
    }
};

TEST_F(DrawToolTest, strokeBecomesOneEvenCurveOnTheSurface)
{
    show(sphere(40, 80));
    take("draw");
    expectOneStep([&] { drag(line(at({-0.6f, -0.2f, 0.77f}), at({0.6f, 0.3f, 0.74f}))); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_EQ(curve(0)->Name(), QStringLiteral("curve 1"));
    EXPECT_FALSE(curve(0)->Closed());
    EXPECT_GT(curve(0)->PointCount(), 30);
    expectEven(*curve(0));
    EXPECT_LT((curve(0)->PointAt(0).position - Vector(-0.6f, -0.2f, 0.77f)).Length(), 0.02f);
    EXPECT_EQ(Kernel()->Undos().UndoText(), QStringLiteral("Draw Stroke"));
}

TEST_F(DrawToolTest, fastHandLeavesNoGaps)
{
    show(sphere(40, 80));
    take("draw");
    const QPointF from = at({-0.7f, 0.0f, 0.7f});
    const QPointF to = at({0.7f, 0.0f, 0.7f});
    press(from);
    moveTo((from + to) / 2);
    release(to);
    ASSERT_EQ(curves().size(), 1);
    EXPECT_GT(lengthOf(placesOf(curve(0)->Points())), 1.4);
    expectEven(*curve(0));
}

TEST_F(DrawToolTest, strokeThatComesBackToItsStartCloses)
{
    show(sphere(40, 80));
    take("draw");
    const QVector<QPointF> way = circle({640.0, 360.0}, 120.0);
    press(way.first());
    for (const QPointF &pixel : way.mid(0, way.size() / 2))
        moveTo(pixel);
    EXPECT_EQ(box.Lines().size(), 1);
    for (const QPointF &pixel : way)
        moveTo(pixel);
    EXPECT_EQ(box.Lines().size(), 2) << "the closing is shown before the release";
    expectOneStep([&] { release(way.last()); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_TRUE(curve(0)->Closed());
    expectEven(*curve(0));
    EXPECT_TRUE(box.Lines().isEmpty());
}

TEST_F(DrawToolTest, clickDrawsNothing)
{
    show(sphere(40, 80));
    take("draw");
    expectNoTrace([&] { click({640.0, 360.0}); });
}

TEST_F(DrawToolTest, strokeBesideTheMeshDrawsNothing)
{
    show(sphere(40, 80));
    take("draw");
    expectNoTrace([&] { drag(line({5.0, 5.0}, {200.0, 30.0})); });
}

TEST_F(DrawToolTest, escapeAndRightClickGiveTheStrokeUp)
{
    show(sphere(40, 80));
    take("draw");
    draw(line({500.0, 300.0}, {700.0, 300.0}));
    draw(line({500.0, 350.0}, {700.0, 350.0}));
    Kernel()->Undo();
    for (const bool byKey : {true, false}) {
        expectNoTrace([&] {
            press({500.0, 400.0});
            moveTo({600.0, 420.0});
            moveTo({700.0, 400.0});
            EXPECT_TRUE(box.InHand()->IsBusy());
            if (byKey)
                box.Cancel();
            else
                press({700.0, 400.0}, Qt::RightButton);
            EXPECT_TRUE(box.Lines().isEmpty());
            moveTo({720.0, 400.0});
            release({720.0, 400.0});
        });
    }
    EXPECT_TRUE(Kernel()->Redo());
}

TEST_F(DrawToolTest, enterLeavingAndAnotherToolKeepTheStroke)
{
    show(sphere(40, 80));
    const std::function<void()> ends[] = {[&] { box.Finish(); }, [&] { box.Leave(); },
                                          [&] {
                                              take("erase");
                                          }};
    double height = 300.0;
    for (const auto &end : ends) {
        take("draw");
        const int count = curves().size();
        press({500.0, height});
        moveTo({700.0, height});
        end();
        release({700.0, height});
        EXPECT_EQ(curves().size(), count + 1);
        EXPECT_EQ(stepCount(), count + 1);
        height += 30.0;
    }
}

TEST_F(DrawToolTest, namesAreTheLowestFreeOnes)
{
    show(sphere(40, 80));
    take("draw");
    draw(line({500.0, 300.0}, {700.0, 300.0}))->SetName(QStringLiteral("curve 2"));
    EXPECT_EQ(draw(line({500.0, 330.0}, {700.0, 330.0}))->Name(), QStringLiteral("curve 1"));
    EXPECT_EQ(draw(line({500.0, 360.0}, {700.0, 360.0}))->Name(), QStringLiteral("curve 3"));
}

TEST_F(DrawToolTest, strokeEndingAtACurveRunsPastIt)
{
    std::mt19937 random(testSeed());
    show(bumpySheet(20, 20, random));
    take("draw");
    const OrvaneCurve *wall = draw(line(at({10, 4, 0}), at({10, 16, 0})));
    const QPointF onWall = at(wall->PointAt(wall->PointCount() / 2).position);
    for (const double miss : {-6.0, -1.0, 0.0, 1.0, 4.0}) {
        expectOneStep([&] { drag(line(onWall - QPointF(150, 20), onWall + QPointF(miss, 0))); });
        const OrvaneCurve *stroke = curves().last();
        EXPECT_EQ(crossings(*stroke, *curve(0)), 1) << miss << " pixels";
        expectEven(*stroke);
        Kernel()->Undo();
    }
}

TEST_F(DrawToolTest, withoutSnappingAStrokeEndsWhereTheHandDoes)
{
    std::mt19937 random(testSeed());
    show(bumpySheet(20, 20, random));
    context.settings.snap = false;
    const OrvaneCurve *wall = draw(line(at({10, 4, 0}), at({10, 16, 0})));
    const QPointF onWall = at(wall->PointAt(wall->PointCount() / 2).position);
    const OrvaneCurve *stroke = draw(line(onWall - QPointF(150, 20), onWall - QPointF(5, 0)));
    EXPECT_EQ(crossings(*stroke, *curve(0)), 0);
    expectSound();
}

TEST_F(DrawToolTest, mirrorDrawsThePartnerInTheSameStep)
{
    show(sphere(40, 80));
    take("draw");
    context.settings.mirrorAxis = 0;
    press(at({0.2f, -0.3f, 0.93f}));
    moveTo(at({0.5f, 0.3f, 0.81f}));
    EXPECT_EQ(box.Lines().size(), 2) << "the partner is shown while drawing";
    expectOneStep([&] { release(at({0.5f, 0.3f, 0.81f})); });
    ASSERT_EQ(curves().size(), 2);
    ASSERT_EQ(curve(0)->PointCount(), curve(1)->PointCount());
    for (int i = 0; i < curve(0)->PointCount(); ++i) {
        const Vector a = curve(0)->PointAt(i).position;
        const Vector b = curve(1)->PointAt(i).position;
        EXPECT_LT((a - Vector(-b.x, b.y, b.z)).Length(), 2e-3f);
    }
    expectEven(*curve(1));
}

TEST_F(DrawToolTest, strokeThatBeginsAtTheMirrorIsOneCurveWithItsPartner)
{
    show(sphere(40, 80));
    take("draw");
    context.settings.mirrorAxis = 0;
    expectOneStep([&] { drag(line(at({0.004f, 0.2f, 0.98f}), at({0.6f, 0.3f, 0.74f}))); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_FALSE(curve(0)->Closed());
    expectEven(*curve(0));
    EXPECT_LT(curve(0)->PointAt(0).position.x * curve(0)->Points().last().position.x, 0.0f);
}

TEST_F(DrawToolTest, halfLoopBetweenTwoPlacesOfTheMirrorCloses)
{
    show(sphere(40, 80));
    take("draw");
    context.settings.mirrorAxis = 0;
    const QVector<QPointF> round = circle(at({0.0f, 0.0f, 1.0f}), 150.0);
    const int quarter = round.size() / 4;
    expectOneStep(
        [&] { drag(round.mid(round.size() - quarter, quarter) + round.mid(0, quarter)); });
    ASSERT_EQ(curves().size(), 1);
    EXPECT_TRUE(curve(0)->Closed());
    expectEven(*curve(0));
}

TEST_F(DrawToolTest, loopAboutTheMirrorIsItsOwnPartner)
{
    show(sphere(40, 80));
    take("draw");
    context.settings.mirrorAxis = 0;
    expectOneStep([&] { drag(circle(at({0.0f, 0.0f, 1.0f}), 150.0)); });
    EXPECT_EQ(curves().size(), 1);
}

TEST_F(DrawToolTest, withoutAMeshTheUserIsTold)
{
    take("draw");
    expectNoTrace([&] { drag(line({500.0, 300.0}, {700.0, 300.0})); });
    EXPECT_EQ(context.messages.size(), 1);
    show(sphere(10, 20))->SetHidden(true);
    expectNoTrace([&] { drag(line({500.0, 300.0}, {700.0, 300.0})); });
    EXPECT_EQ(context.messages.size(), 2);
}

TEST_F(DrawToolTest, meshThatGoesAwayUnderTheStrokeLeavesNothing)
{
    Geometry *geometry = show(sphere(40, 80));
    take("draw");
    press({500.0, 300.0});
    moveTo({600.0, 300.0});
    Kernel()->Scene()->RemoveGeometry(geometry);
    delete geometry;
    show(sphere(40, 80));
    moveTo({700.0, 300.0});
    release({700.0, 300.0});
    EXPECT_TRUE(curves().isEmpty());
}

TEST_F(DrawToolTest, longStrokeAmongManyCurvesIsEvenAndSound)
{
    show(sphere(188, 188)); // 70,312 triangles
    for (int i = 0; i < 100; ++i) {
        const double angle = i * 0.0628;
        const QPointF way(std::cos(angle), std::sin(angle));
        draw(line(QPointF(640, 360) + way * 170, QPointF(640, 360) + way * 270, 10));
    }
    ASSERT_EQ(curves().size(), 100);
    take("draw");
    QVector<QPointF> way;
    for (int i = 0; i < 2000; ++i) {
        const double angle = i * 0.02;
        way.append(QPointF(640, 360) + QPointF(std::cos(angle), std::sin(angle)) * (40 + i * 0.1));
    }
    drag(way);
    ASSERT_EQ(curves().size(), 101);
    expectEven(*curves().last());
    expectSound();
}
