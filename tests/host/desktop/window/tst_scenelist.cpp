// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktopinterface.h"
#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/menus.h"
#include "host/desktop/window/progressdisplay.h"
#include "host/desktop/window/scenelist.h"

#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/selectoperation.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::Geometry;
using orvane::Kernel;
using orvane::OrvaneCurve;
using orvane::SceneList;

namespace {

// The list in a window whose interface keeps it up to date, as on the desktop.
class SceneListTest : public SceneCleaner
{
protected:
    SceneListTest()
        : m_menus(m_window.menuBar()),
          m_progress(&m_window),
          m_message(&m_window),
          m_interface({&m_window, &m_menus, &m_progress, &m_message}),
          m_list(new SceneList(&m_window))
    {
        m_head = addToScene(cube(), QStringLiteral("Head"));
        m_shell = addToScene(cube(), QStringLiteral("Shell"));
        for (OrvaneCurve *&curve : m_curves) {
            curve = new OrvaneCurve;
            curve->SetName(QStringLiteral("curve%1").arg(&curve - m_curves));
            curve->AppendPoint({});
            curve->AppendPoint({});
            Kernel()->Scene()->AddCurve(curve);
        }
        Kernel()->Scene()->SetActiveGeometry(m_shell);
        QObject::connect(&m_interface, &orvane::DesktopInterface::refreshed, m_list,
                         &SceneList::Refresh);
        m_window.setCentralWidget(m_list);
        m_window.resize(360, 400);
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window))
            ADD_FAILURE() << "the window does not show";
        m_list->Refresh();
    }

    QRect cell(const orvane::Node *node, int column)
    {
        const QModelIndex index = m_list->model()->index(
            m_list->RowOf(node)->parent()->indexOfChild(m_list->RowOf(node)), column,
            m_list->model()->index(m_list->indexOfTopLevelItem(m_list->RowOf(node)->parent()), 0));
        return m_list->visualRect(index);
    }
    void click(const orvane::Node *node, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, modifiers,
                          cell(node, column).center());
        QTest::qWait(10);
    }
    void key(int code)
    {
        QTest::keyClick(m_list, Qt::Key(code));
        QTest::qWait(10);
    }
    void undo()
    {
        ASSERT_TRUE(Kernel()->Undo());
        QTest::qWait(10);
    }
    // Of the current row, as its menu key opens it.
    void chooseFromContextMenu(const QString &entry)
    {
        bool chosen = false;
        QTimer::singleShot(50, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction *action : menu->actions()) {
                if (action->text() != entry)
                    continue;
                chosen = true;
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return;
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                m_list->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(m_list->viewport(), &event);
        EXPECT_TRUE(chosen) << qPrintable(entry);
        QTest::qWait(10);
    }
    QString text(const orvane::Node *node, int column = SceneList::NameColumn)
    {
        return m_list->RowOf(node)->text(column);
    }
    bool isMarked(const Geometry *geometry)
    {
        return m_list->RowOf(geometry)->toolTip(0).contains(QStringLiteral("draw on this mesh"));
    }
    QLineEdit *editor() { return m_list->viewport()->findChild<QLineEdit *>(); }

    QMainWindow m_window;
    orvane::Menus m_menus;
    orvane::ProgressDisplay m_progress;
    orvane::HudMessage m_message;
    orvane::DesktopInterface m_interface;
    SceneList *m_list;
    Geometry *m_head;
    Geometry *m_shell;
    OrvaneCurve *m_curves[3];
};

} // namespace

TEST_F(SceneListTest, listsMeshesAndCurves)
{
    EXPECT_EQ(m_list->topLevelItem(0)->text(0), QStringLiteral("Meshes (2)"));
    EXPECT_EQ(m_list->topLevelItem(1)->text(0), QStringLiteral("Curves (3)"));
    EXPECT_EQ(text(m_head), QStringLiteral("Head"));
    EXPECT_EQ(text(m_curves[2]), QStringLiteral("curve2"));
}

TEST_F(SceneListTest, theActiveGeometryIsBoldAndTheDrawnOnIsMarked)
{
    EXPECT_TRUE(m_list->RowOf(m_shell)->font(0).bold());
    EXPECT_FALSE(m_list->RowOf(m_head)->font(0).bold());
    EXPECT_TRUE(isMarked(m_head));
    EXPECT_FALSE(isMarked(m_shell));
}

TEST_F(SceneListTest, clicksSelectInTheScene)
{
    click(m_curves[0], SceneList::NameColumn);
    EXPECT_TRUE(m_curves[0]->Selected());
    click(m_curves[2], SceneList::NameColumn, Qt::ShiftModifier);
    EXPECT_TRUE(m_curves[1]->Selected());
    EXPECT_TRUE(m_curves[2]->Selected());
    click(m_curves[1], SceneList::NameColumn, Qt::ControlModifier);
    EXPECT_FALSE(m_curves[1]->Selected());
    EXPECT_EQ(Kernel()->Undos().Position(), 3);
    undo();
    EXPECT_TRUE(m_curves[1]->Selected());
    EXPECT_TRUE(m_list->RowOf(m_curves[1])->isSelected());
}

TEST_F(SceneListTest, theSelectionOfTheSceneIsShown)
{
    orvane::SelectOperation operation({m_curves[1], m_shell});
    ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
    QTest::qWait(10);
    EXPECT_TRUE(m_list->RowOf(m_curves[1])->isSelected());
    EXPECT_TRUE(m_list->RowOf(m_shell)->isSelected());
    EXPECT_FALSE(m_list->RowOf(m_curves[0])->isSelected());
    EXPECT_EQ(Kernel()->Undos().Position(), 1) << "showing a selection is no step of its own";
}

TEST_F(SceneListTest, rowsThatStayAreKeptAndOthersComeWhereTheyBelong)
{
    const QTreeWidgetItem *first = m_list->RowOf(m_curves[0]);
    const QTreeWidgetItem *last = m_list->RowOf(m_curves[2]);
    orvane::DeleteCurveOperation operation({m_curves[1]});
    ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
    QTest::qWait(10);
    const QTreeWidgetItem *curves = m_list->topLevelItem(1);
    EXPECT_EQ(curves->childCount(), 2);
    undo();
    ASSERT_EQ(curves->childCount(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(curves->child(i)->text(0), QStringLiteral("curve%1").arg(i));
    EXPECT_EQ(curves->child(0), first);
    EXPECT_EQ(curves->child(2), last);
}

TEST_F(SceneListTest, arrowKeysSelect)
{
    click(m_curves[0], SceneList::NameColumn);
    key(Qt::Key_Down);
    EXPECT_FALSE(m_curves[0]->Selected());
    EXPECT_TRUE(m_curves[1]->Selected());
}

TEST_F(SceneListTest, theEyeHidesAndShows)
{
    click(m_curves[1], SceneList::EyeColumn);
    EXPECT_TRUE(m_curves[1]->IsHidden());
    EXPECT_FALSE(m_curves[0]->IsHidden());
    click(m_curves[1], SceneList::EyeColumn);
    EXPECT_FALSE(m_curves[1]->IsHidden());
    undo();
    EXPECT_TRUE(m_curves[1]->IsHidden());
}

TEST_F(SceneListTest, spaceHidesAndShowsTheSelectedRows)
{
    click(m_curves[0], SceneList::NameColumn);
    click(m_head, SceneList::NameColumn, Qt::ControlModifier);
    key(Qt::Key_Space);
    EXPECT_TRUE(m_curves[0]->IsHidden());
    EXPECT_TRUE(m_head->IsHidden());
    key(Qt::Key_Space);
    EXPECT_FALSE(m_curves[0]->IsHidden());
    EXPECT_FALSE(m_head->IsHidden());
}

TEST_F(SceneListTest, aNameIsTypedInPlace)
{
    click(m_curves[0], SceneList::NameColumn);
    key(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QStringLiteral("brow"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTest::qWait(10);
    EXPECT_EQ(m_curves[0]->Name(), QStringLiteral("brow"));
    EXPECT_EQ(text(m_curves[0]), QStringLiteral("brow"));
    undo();
    EXPECT_EQ(text(m_curves[0]), QStringLiteral("curve0"));
}

TEST_F(SceneListTest, anEmptyNameIsRefused)
{
    click(m_curves[0], SceneList::NameColumn);
    key(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClick(editor(), Qt::Key_Delete);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTest::qWait(10);
    EXPECT_EQ(m_curves[0]->Name(), QStringLiteral("curve0"));
    EXPECT_EQ(text(m_curves[0]), QStringLiteral("curve0"));
}

TEST_F(SceneListTest, escapeLeavesTheName)
{
    click(m_curves[0], SceneList::NameColumn);
    key(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QStringLiteral("brow"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTest::qWait(10);
    EXPECT_EQ(m_curves[0]->Name(), QStringLiteral("curve0"));
}

TEST_F(SceneListTest, deletingMeshesAndCurvesIsOneStep)
{
    click(m_curves[0], SceneList::NameColumn);
    click(m_shell, SceneList::NameColumn, Qt::ControlModifier);
    const int before = Kernel()->Undos().Position();
    m_list->DeleteSelected();
    QTest::qWait(10);
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 3);
    EXPECT_EQ(m_list->topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(m_list->topLevelItem(1)->childCount(), 2);
    EXPECT_EQ(Kernel()->Undos().Position(), before + 1);
    undo();
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 5);
    EXPECT_EQ(m_list->topLevelItem(0)->childCount(), 2);
}

TEST_F(SceneListTest, anotherMeshCanBeDrawnOnAndThatCanBeUndone)
{
    click(m_shell, SceneList::NameColumn);
    const int before = Kernel()->Undos().Position();
    chooseFromContextMenu(QStringLiteral("Draw on This Mesh"));
    EXPECT_EQ(Kernel()->Scene()->DrawingSurface(), m_shell);
    EXPECT_TRUE(isMarked(m_shell));
    EXPECT_FALSE(isMarked(m_head));
    EXPECT_EQ(Kernel()->Undos().Position(), before + 1);
    EXPECT_EQ(Kernel()->Undos().UndoText(), QStringLiteral("Choose Mesh to Draw On"));
    undo();
    EXPECT_TRUE(isMarked(m_head));
    EXPECT_FALSE(isMarked(m_shell));
    ASSERT_TRUE(Kernel()->Redo());
    QTest::qWait(10);
    EXPECT_TRUE(isMarked(m_shell));
}

TEST_F(SceneListTest, groupRowsAreNoNodes)
{
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->RenameCurrent();
    m_list->ToggleSelected();
    m_list->DrawOnCurrent();
    m_list->DeleteSelected();
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 5);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(SceneListTest, aMeshThatAStepMadeTellsItsCreation)
{
    m_list->BeginAnew();
    auto *made = new Geometry;
    made->SetName(QStringLiteral("Made"));
    made->AddLevel(cube());
    orvane::SelectOperation step({m_curves[0]}); // stands for the step of a tool
    ASSERT_TRUE(Kernel()->DoOperation(&step, true, false));
    Kernel()->Scene()->AddGeometry(made);
    m_list->Refresh();
    EXPECT_EQ(text(made, SceneList::MarkColumn), QStringLiteral("#1"));
    EXPECT_TRUE(text(m_shell, SceneList::MarkColumn).isEmpty());

    auto *imported = new Geometry;
    imported->AddLevel(cube());
    orvane::AddGeometryOperation import(imported);
    ASSERT_TRUE(Kernel()->DoOperation(&import, true, false));
    m_list->Refresh();
    const Geometry *last = Kernel()->Scene()->Geometries().constLast();
    EXPECT_TRUE(text(last, SceneList::MarkColumn).isEmpty());
}
