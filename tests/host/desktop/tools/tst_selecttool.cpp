// SPDX-License-Identifier: MIT
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>

using namespace orvane;

using Indices = QVector<int>;

// Three strokes across a sphere, at heights 260, 360 and 460.
class SelectToolTest : public ToolsTest
{
protected:
    SelectToolTest()
    {
        geometry = show(sphere(40, 80));
        for (const double y : {260.0, 360.0, 460.0})
            draw(line({480.0, y}, {800.0, y}));
        take("select");
    }

    Geometry *geometry;
};

TEST_F(SelectToolTest, clickSelectsTheCurveUnderIt)
{
    expectOneStep([&] { click({600.0, 363.0}); });
    EXPECT_EQ(selected(), (Indices{1}));
    EXPECT_EQ(Kernel()->Undos().UndoText(), QStringLiteral("Select"));
    expectOneStep([&] { click({600.0, 460.0}); });
    EXPECT_EQ(selected(), (Indices{2}));
    expectNoTrace([&] { click({600.0, 460.0}); });
}

TEST_F(SelectToolTest, clickBesideEveryCurveSelectsNone)
{
    select({0, 1});
    expectOneStep([&] { click({640.0, 310.0}); });
    EXPECT_EQ(selected(), Indices());
}

TEST_F(SelectToolTest, shiftAddsAndControlRemoves)
{
    click({600.0, 360.0});
    expectOneStep([&] { click({600.0, 260.0}, Qt::ShiftModifier); });
    EXPECT_EQ(selected(), (Indices{0, 1}));
    expectNoTrace([&] { click({640.0, 310.0}, Qt::ShiftModifier); });
    expectOneStep([&] { click({600.0, 360.0}, Qt::ControlModifier); });
    EXPECT_EQ(selected(), (Indices{0}));
}

TEST_F(SelectToolTest, boxSelectsWhatIsPartlyInside)
{
    press({700.0, 400.0});
    moveTo({760.0, 230.0});
    ASSERT_EQ(box.Shapes().size(), 1);
    EXPECT_TRUE(box.Shapes().first().closed);
    expectOneStep([&] { release({760.0, 230.0}); });
    EXPECT_EQ(selected(), (Indices{0, 1}));
    expectOneStep([&] { drag({{400.0, 440.0}, {900.0, 480.0}}, Qt::ShiftModifier); });
    EXPECT_EQ(selected(), (Indices{0, 1, 2}));
    expectOneStep([&] { drag({{400.0, 240.0}, {900.0, 280.0}}, Qt::ControlModifier); });
    EXPECT_EQ(selected(), (Indices{1, 2}));
}

TEST_F(SelectToolTest, lassoSelectsWhatItGoesAround)
{
    take("lasso");
    press({760.0, 440.0});
    for (const QPointF &pixel : {QPointF(780, 440), QPointF(780, 480), QPointF(740, 480)})
        moveTo(pixel);
    EXPECT_EQ(box.Shapes().size(), 1);
    expectOneStep([&] { release({740.0, 440.0}); });
    EXPECT_EQ(selected(), (Indices{2}));
    // Around the outer ends of two, passing by the one between them.
    const QVector<QPointF> hook = line({780, 240}, {780, 480}, 20) + line({780, 480}, {820, 480}, 5)
                                  + line({820, 480}, {820, 240}, 20);
    expectOneStep([&] { drag(hook); });
    EXPECT_EQ(selected(), (Indices{0, 1, 2}));
}

TEST_F(SelectToolTest, hiddenCurvesAndThoseBehindTheMeshAreNotFound)
{
    curve(1)->SetHidden(true);
    expectNoTrace([&] { click({600.0, 360.0}); });
    context.camera.LookFrom(StandardView::Back);
    expectNoTrace([&] { drag({{400.0, 200.0}, {900.0, 500.0}}); });
}

TEST_F(SelectToolTest, geometriesKeepTheirSelection)
{
    geometry->SetSelected(true);
    click({600.0, 360.0});
    EXPECT_TRUE(geometry->Selected());
    geometry->SetSelected(false);
    click({600.0, 260.0});
    EXPECT_FALSE(geometry->Selected());
}

TEST_F(SelectToolTest, escapeGivesTheBoxUp)
{
    for (const char *tool : {"select", "lasso"}) {
        take(tool);
        expectNoTrace([&] {
            press({400.0, 200.0});
            moveTo({900.0, 500.0});
            box.Cancel();
            EXPECT_TRUE(box.Shapes().isEmpty());
            release({900.0, 500.0});
        });
    }
}

TEST_F(SelectToolTest, curveUnderThePointerIsHighlighted)
{
    moveTo({600.0, 258.0});
    EXPECT_EQ(box.HoveredCurve(), curve(0));
    moveTo({600.0, 310.0});
    EXPECT_EQ(box.HoveredCurve(), nullptr);
}
