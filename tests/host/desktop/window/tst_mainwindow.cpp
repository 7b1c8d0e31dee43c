// SPDX-License-Identifier: MIT
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/document/document.h"
#include "host/desktop/tools/tool.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/preferencesdialog.h"
#include "host/desktop/window/scenelist.h"
#include "host/desktop/window/startpage.h"

#include "tests/support/dialoganswer.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/renameoperation.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTextBrowser>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::Kernel;

namespace {

class MainWindowTest : public WindowTest
{
protected:
    QList<QAction *> menuActions() const
    {
        QList<QAction *> all;
        for (const QAction *action : m_window->menuBar()->actions())
            collect(action->menu(), &all);
        return all;
    }

    static void collect(const QMenu *menu, QList<QAction *> *all)
    {
        for (QAction *action : menu->actions()) {
            if (action->menu())
                collect(action->menu(), all);
            else if (!action->isSeparator())
                all->append(action);
        }
    }

    // Unsaved work: the mesh has another name.
    void openAndChange()
    {
        ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
        orvane::RenameOperation operation(Kernel()->Scene()->NodeAt(0), QStringLiteral("Other"));
        ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
        settle();
    }

    bool isStartPageUp() const { return m_window->findChild<orvane::StartPage *>()->isVisible(); }
};

// Reads a dialog while it is up, then closes it.
template <typename Look>
void whileDialogIsUp(const char *name, QAction *action, Look look)
{
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || dialog->objectName() != QLatin1String(name))
            return;
        seen = true;
        timer.stop();
        look(*dialog);
        dialog->close();
    });
    timer.start(10);
    action->trigger();
    EXPECT_TRUE(seen) << name;
}

} // namespace

TEST_F(MainWindowTest, toolsThatDrawHaveCursorsOfTheirOwn)
{
    QSet<QByteArray> pictures;
    for (const orvane::Tool *tool : m_window->Tools().Tools()) {
        const QCursor cursor = tool->Cursor();
        const QString id = tool->Description().id;
        if (id == QLatin1String("select") || id == QLatin1String("move")) {
            EXPECT_EQ(cursor.shape(), Qt::ArrowCursor) << "until there is a curve to take";
            continue;
        }
        ASSERT_EQ(cursor.shape(), Qt::BitmapCursor) << qPrintable(id);
        EXPECT_EQ(cursor.hotSpot(), QPoint(9, 9));
        const QImage picture = cursor.pixmap().toImage();
        pictures.insert(
            {reinterpret_cast<const char *>(picture.constBits()), int(picture.sizeInBytes())});
    }
    EXPECT_EQ(pictures.size(), 8);
}

TEST_F(MainWindowTest, everyCommandHasANameATextAndATip)
{
    const QList<QAction *> actions = menuActions();
    EXPECT_GT(actions.size(), 60);
    QSet<QString> names;
    for (const QAction *action : actions) {
        if (action->objectName().isEmpty()) {
            EXPECT_EQ(action->parent()->objectName(), QStringLiteral("recentFiles"))
                << qPrintable(action->text());
            continue;
        }
        EXPECT_FALSE(names.contains(action->objectName())) << qPrintable(action->objectName());
        names.insert(action->objectName());
        EXPECT_FALSE(action->text().isEmpty()) << qPrintable(action->objectName());
        EXPECT_FALSE(action->statusTip().isEmpty()) << qPrintable(action->objectName());
    }
}

TEST_F(MainWindowTest, noShortcutIsGivenTwice)
{
    QHash<QKeySequence, QString> taken;
    const QList<QAction *> actions = m_window->findChildren<QAction *>();
    for (const QAction *action : actions) {
        for (const QKeySequence &keys : action->shortcuts()) {
            EXPECT_FALSE(taken.contains(keys))
                << qPrintable(keys.toString()) << ": " << qPrintable(action->objectName())
                << " and " << qPrintable(taken.value(keys));
            taken.insert(keys, action->objectName());
        }
    }
    EXPECT_GT(taken.size(), 45);
}

TEST_F(MainWindowTest, everyIconHasAText)
{
    int icons = 0;
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        if (action->icon().isNull())
            continue;
        ++icons;
        EXPECT_FALSE(action->text().isEmpty()) << qPrintable(action->objectName());
        EXPECT_FALSE(action->toolTip().isEmpty()) << qPrintable(action->objectName());
    }
    EXPECT_EQ(icons, m_window->Tools().Tools().size());
    for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
        if (!button->icon().isNull() && button->isVisible()) {
            EXPECT_FALSE(button->text().isEmpty() && button->toolTip().isEmpty()
                         && button->accessibleName().isEmpty())
                << qPrintable(button->objectName());
        }
    }
}

TEST_F(MainWindowTest, everyCommandIsInAMenu)
{
    const QList<QAction *> inMenus = menuActions();
    for (QAction *action : m_window->findChildren<QAction *>()) {
        if (!action->shortcut().isEmpty()) {
            EXPECT_TRUE(inMenus.contains(action)) << qPrintable(action->objectName());
        }
    }
}

TEST_F(MainWindowTest, menusOfABarHaveTheirOwnLetters)
{
    QSet<QChar> letters;
    for (const QAction *action : m_window->menuBar()->actions()) {
        const int mark = action->text().indexOf(QLatin1Char('&'));
        ASSERT_GE(mark, 0) << qPrintable(action->text());
        const QChar letter = action->text().at(mark + 1).toLower();
        EXPECT_FALSE(letters.contains(letter)) << qPrintable(action->text());
        letters.insert(letter);
    }
}

TEST_F(MainWindowTest, fitsASmallScreen)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    const QSize least = m_window->minimumSizeHint();
    EXPECT_LE(least.width(), 1280);
    EXPECT_LE(least.height(), 720);
    m_window->resize(1280, 720);
    settle();
    EXPECT_EQ(m_window->size(), QSize(1280, 720));
    EXPECT_GT(m_window->Viewport().width(), 600);
    EXPECT_GT(m_window->Viewport().height(), 400);
}

TEST_F(MainWindowTest, theStartPageIsUpWhileThereIsNothing)
{
    EXPECT_TRUE(isStartPageUp());
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    EXPECT_FALSE(isStartPageUp());
    EXPECT_TRUE(m_window->Viewport().isVisible());
    action("newScene")->trigger();
    settle();
    EXPECT_TRUE(isStartPageUp());
}

TEST_F(MainWindowTest, navigationIsChosenOnTheStartPageAndKept)
{
    auto *box = m_window->findChild<QComboBox *>(QStringLiteral("startNavigation"));
    ASSERT_NE(box, nullptr);
    box->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(m_window->Viewport().Navigation().Preset(), orvane::NavigationPreset::MiddleDrag);
    openWindow();
    EXPECT_EQ(m_window->Viewport().Navigation().Preset(), orvane::NavigationPreset::MiddleDrag);
}

TEST_F(MainWindowTest, undoNamesTheStep)
{
    openAndChange();
    const QString step = Kernel()->Undos().UndoText();
    ASSERT_FALSE(step.isEmpty());
    EXPECT_TRUE(action("undo")->text().contains(step));
    EXPECT_FALSE(action("redo")->isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Kernel()->Scene()->NodeAt(0)->Name(), QStringLiteral("Other"));
    EXPECT_TRUE(action("redo")->text().contains(step));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Kernel()->Scene()->NodeAt(0)->Name(), QStringLiteral("Other"));
}

TEST_F(MainWindowTest, aStepThatCannotBeDoneAgainIsToldAndKept)
{
    openAndChange();
    const QString step = Kernel()->Undos().UndoText();
    press(Qt::Key_Z, Qt::ControlModifier);
    auto *message = m_window->findChild<orvane::HudMessage *>(QStringLiteral("hudMessage"));
    EXPECT_TRUE(message->Text().contains(QStringLiteral("Undone: ") + step));
    orvane::Geometry *cube = Kernel()->Scene()->Geometries().constFirst();
    const orvane::ScenePlace place = Kernel()->Scene()->PlaceOf(cube);
    Kernel()->Scene()->Remove(cube);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(message->Text().contains(QStringLiteral("Not done again: ") + step));
    EXPECT_TRUE(action("redo")->isEnabled());
    ASSERT_TRUE(Kernel()->Scene()->Restore(cube, place));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(cube->Name(), QStringLiteral("Other"));
}

TEST_F(MainWindowTest, theTitleTellsOfUnsavedWork)
{
    openAndChange();
    EXPECT_TRUE(m_window->isWindowModified());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(MainWindowTest, closingAsksAboutUnsavedWork)
{
    openAndChange();
    {
        DialogAnswer answer(QStringLiteral("cancel"));
        EXPECT_FALSE(m_window->close());
        EXPECT_EQ(answer.count(), 1);
        EXPECT_TRUE(m_window->isVisible());
    }
    DialogAnswer answer(QStringLiteral("discard"));
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(answer.count(), 1);
}

TEST_F(MainWindowTest, closingWithoutUnsavedWorkAsksNothing)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    DialogAnswer answer(QStringLiteral("cancel"));
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(answer.count(), 0);
}

TEST_F(MainWindowTest, closingCanSave)
{
    openAndChange();
    QString error;
    ASSERT_TRUE(m_window->Document().SaveAs(file("kept.orvane"), &error)) << qPrintable(error);
    orvane::RenameOperation operation(Kernel()->Scene()->NodeAt(0), QStringLiteral("Third"));
    ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
    {
        DialogAnswer answer(QStringLiteral("save"));
        EXPECT_TRUE(m_window->close());
        EXPECT_EQ(answer.count(), 1);
    }
    openWindow();
    ASSERT_TRUE(m_window->Files().Open({file("kept.orvane")}));
    EXPECT_EQ(Kernel()->Scene()->NodeAt(0)->Name(), QStringLiteral("Third"));
}

TEST_F(MainWindowTest, anotherSceneAsksAboutUnsavedWork)
{
    openAndChange();
    DialogAnswer answer(QStringLiteral("cancel"));
    EXPECT_FALSE(m_window->Files().Open({cubeFile()}));
    action("newScene")->trigger();
    EXPECT_EQ(answer.count(), 2);
    EXPECT_EQ(Kernel()->Scene()->NodeAt(0)->Name(), QStringLiteral("Other"));
}

TEST_F(MainWindowTest, aFileThatCannotBeOpenedIsNamed)
{
    QString text;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            text = dialog->property("text").toString();
            dialog->close();
        }
    });
    timer.start(10);
    EXPECT_FALSE(m_window->Files().Open({file("missing.obj")}));
    EXPECT_TRUE(text.contains(QStringLiteral("missing.obj"))) << qPrintable(text);
    EXPECT_TRUE(isStartPageUp());
}

TEST_F(MainWindowTest, droppedFilesAreOpened)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(cubeFile())});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.data(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.data(), &drop);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1);
}

TEST_F(MainWindowTest, openedFilesAreRecent)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    openWindow();
    auto *menu = m_window->findChild<QMenu *>(QStringLiteral("recentFiles"));
    ASSERT_NE(menu, nullptr);
    emit menu->aboutToShow();
    ASSERT_FALSE(menu->actions().isEmpty());
    EXPECT_TRUE(menu->actions().constFirst()->text().contains(QStringLiteral("cube.obj")));
    menu->actions().constFirst()->trigger();
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1);
}

TEST_F(MainWindowTest, toolsAreChosenByKey)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    for (const orvane::Tool *tool : m_window->Tools().Tools()) {
        const orvane::ToolDescription words = tool->Description();
        ASSERT_EQ(words.shortcut.count(), 1);
        press(words.shortcut[0]);
        EXPECT_EQ(m_window->Tools().InHand(), tool) << qPrintable(words.id);
        const QAction *button = action(("tool_" + words.id.toLatin1()).constData());
        ASSERT_NE(button, nullptr);
        EXPECT_TRUE(button->isChecked()) << qPrintable(words.id);
        EXPECT_FALSE(button->icon().isNull()) << qPrintable(words.id);
        EXPECT_TRUE(QFile::exists(QStringLiteral("Help/%1.md").arg(words.id)))
            << qPrintable(words.id);
    }
}

TEST_F(MainWindowTest, lettersTypedIntoTheCommandLineChooseNoTool)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    press(Qt::Key_L, Qt::ControlModifier);
    auto *line = m_window->findChild<QLineEdit *>(QStringLiteral("commandLine"));
    ASSERT_EQ(QApplication::focusWidget(), line);
    const orvane::Tool *before = m_window->Tools().InHand();
    QTest::keyClicks(line, QStringLiteral("erase 1357"));
    EXPECT_EQ(line->text(), QStringLiteral("erase 1357"));
    EXPECT_EQ(m_window->Tools().InHand(), before);
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &m_window->Viewport());
}

TEST_F(MainWindowTest, preferencesAreTakenOverAndKept)
{
    whileDialogIsUp("preferencesDialog", action("preferences"), [](QWidget &dialog) {
        dialog.findChild<QComboBox *>(QStringLiteral("navigation"))->setCurrentIndex(2);
        dialog.findChild<QComboBox *>(QStringLiteral("shading"))->setCurrentIndex(1);
        dialog.findChild<QComboBox *>(QStringLiteral("theme"))->setCurrentIndex(2);
        dialog.findChild<QAbstractButton *>(QStringLiteral("renderMeshFaults"))->click();
        dialog.findChild<QAbstractButton *>(QStringLiteral("showGrid"))->click();
        dialog.findChild<QAbstractButton *>(QStringLiteral("accept"))->click();
    });
    const bool faults = Kernel()->Preferences()->renderMeshFaults.Value();
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(m_window->Viewport().Navigation().Preset(), orvane::NavigationPreset::Viewer);
        EXPECT_EQ(m_window->Viewport().Options().shading, orvane::Shading::Flat);
        EXPECT_FALSE(m_window->Viewport().Options().showGrid);
        EXPECT_EQ(QApplication::palette().color(QPalette::Window),
                  orvane::paletteOf(orvane::Theme::Dark).color(QPalette::Window));
        EXPECT_EQ(Kernel()->Preferences()->renderMeshFaults.Value(), faults);
        openWindow();
    }
    Kernel()->Preferences()->renderMeshFaults.SetValue(false);
}

TEST_F(MainWindowTest, theShortcutSheetHasEveryShortcut)
{
    whileDialogIsUp("shortcutSheet", action("shortcuts"), [this](QWidget &dialog) {
        const QString text =
            dialog.findChild<QTextBrowser *>(QStringLiteral("shortcutText"))->toPlainText();
        for (const QAction *command : menuActions()) {
            if (!command->shortcut().isEmpty()) {
                EXPECT_TRUE(text.contains(command->shortcut().toString(QKeySequence::NativeText)))
                    << qPrintable(command->objectName());
            }
        }
    });
}

TEST_F(MainWindowTest, viewSwitchesReachTheView)
{
    for (const char *name : {"wireframe", "xRay", "dimSource", "showGrid", "showHeadsUp"}) {
        const orvane::ViewOptions before = m_window->Viewport().Options();
        action(name)->trigger();
        const orvane::ViewOptions after = m_window->Viewport().Options();
        const int changes = (before.wireframe != after.wireframe) + (before.xRay != after.xRay)
                            + (before.dimSource != after.dimSource)
                            + (before.showGrid != after.showGrid)
                            + (before.showHud != after.showHud);
        EXPECT_EQ(changes, 1) << name;
    }
}

TEST_F(MainWindowTest, deleteInTheViewLeavesASelectedMesh)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    auto *list = m_window->findChild<orvane::SceneList *>();
    list->RowOf(Kernel()->Scene()->NodeAt(0))->setSelected(true);
    settle();
    ASSERT_TRUE(Kernel()->Scene()->Geometries().constFirst()->Selected());
    m_window->Viewport().setFocus();
    press(Qt::Key_Delete);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1);
    list->setFocus();
    press(Qt::Key_Delete);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 0);
}
