// SPDX-License-Identifier: MIT
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QSet>

using namespace orvane;

class ToolBoxTest : public ToolsTest
{};

TEST_F(ToolBoxTest, eachToolSaysWhatItIs)
{
    QSet<QString> ids;
    QSet<QString> shortcuts;
    for (const Tool *tool : box.Tools()) {
        const ToolDescription description = tool->Description();
        EXPECT_FALSE(description.text.isEmpty());
        EXPECT_TRUE(description.hint.endsWith(QLatin1Char('.')));
        EXPECT_TRUE(description.hint.contains(QLatin1String("Esc")))
            << description.hint.toStdString();
        ids.insert(description.id);
        shortcuts.insert(description.shortcut.toString());
    }
    const QSet<QString> expected{QStringLiteral("draw"),   QStringLiteral("section"),
                                 QStringLiteral("loop"),   QStringLiteral("erase"),
                                 QStringLiteral("extend"), QStringLiteral("join"),
                                 QStringLiteral("move"),   QStringLiteral("smooth"),
                                 QStringLiteral("select"), QStringLiteral("lasso")};
    EXPECT_EQ(ids, expected);
    EXPECT_EQ(shortcuts.size(), ids.size());
    EXPECT_FALSE(shortcuts.contains(QString()));
}

// Of the view: frame, all, the standard views, orthographic, the sheet of shortcuts.
TEST_F(ToolBoxTest, noToolTakesAKeyOfTheView)
{
    for (const Tool *tool : box.Tools()) {
        const QString key = tool->Description().shortcut.toString();
        EXPECT_FALSE(QStringLiteral("FAH1375").contains(key)) << key.toStdString();
    }
}

TEST_F(ToolBoxTest, toolsAreChosenById)
{
    EXPECT_EQ(box.InHand()->Description().id, QStringLiteral("draw"));
    for (Tool *tool : box.Tools()) {
        const QString id = tool->Description().id;
        EXPECT_EQ(box.ToolById(id), tool);
        EXPECT_TRUE(box.Choose(id));
        EXPECT_EQ(box.InHand(), tool);
        EXPECT_EQ(box.Cursor().shape(), tool->Cursor().shape());
        EXPECT_EQ(box.UseOfLeftDrag(), tool->UseOfLeftDrag());
    }
    Tool *before = box.InHand();
    EXPECT_FALSE(box.Choose(QStringLiteral("hammer")));
    EXPECT_EQ(box.InHand(), before);
    EXPECT_EQ(box.ToolById(QStringLiteral("hammer")), nullptr);
}

TEST_F(ToolBoxTest, otherButtonsAndTheWheelAreNotForTools)
{
    show(sphere(20, 40));
    for (const Tool *tool : box.Tools()) {
        box.Choose(tool->Description().id);
        expectNoTrace([&] {
            press({640.0, 360.0}, Qt::MiddleButton);
            moveTo({700.0, 360.0});
            release({700.0, 360.0}, Qt::MiddleButton);
            box.Handle({PointerEvent::Wheel,
                        {640.0, 360.0},
                        Qt::NoButton,
                        Qt::NoButton,
                        Qt::NoModifier,
                        1.0});
            release({700.0, 360.0});
        });
    }
}

TEST_F(ToolBoxTest, anEmptySceneBearsEveryTool)
{
    for (const Tool *tool : box.Tools()) {
        box.Choose(tool->Description().id);
        expectNoTrace([&] {
            moveTo({600.0, 360.0});
            drag(line({600.0, 360.0}, {700.0, 300.0}));
            click({640.0, 360.0});
            box.Finish();
            box.Leave();
        });
        EXPECT_EQ(box.HoveredCurve(), nullptr);
    }
}

TEST_F(ToolBoxTest, movesAskForARepaint)
{
    show(sphere(20, 40));
    press({640.0, 360.0});
    const int before = context.repaints;
    moveTo({660.0, 360.0});
    EXPECT_GT(context.repaints, before);
}
