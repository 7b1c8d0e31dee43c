// SPDX-License-Identifier: MIT
// Whatever can be done here can be done without a mouse.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/scenelist.h"

#include "tests/host/widgets/helpwindow.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

const int MostStops = 60; // of the Tab key in one window

class Keyboard : public WindowTest, public testing::WithParamInterface<const char *>
{
protected:
    Keyboard()
    {
        orvane::setLanguage(orvane::resourceFolder() + QStringLiteral("/Translations"),
                            QLatin1String(GetParam()));
        openWindow();
        if (!m_window->Files().Open({cubeFile()}))
            ADD_FAILURE() << "no cube";
        settle();
    }
    ~Keyboard() override
    {
        m_window.reset();
        orvane::setLanguage(QString(), QStringLiteral("en"));
    }

    static void collect(const QMenu &menu, QSet<const QAction *> *all)
    {
        for (QAction *action : menu.actions()) {
            all->insert(action);
            if (action->menu())
                collect(*action->menu(), all);
        }
    }

    // Where the Tab key goes from here, until it is round.
    static QSet<QWidget *> tabStops(QWidget &window)
    {
        QSet<QWidget *> stops;
        for (int i = 0; i < MostStops; ++i) {
            QWidget *focus = window.focusWidget() ? window.focusWidget() : &window;
            QTest::keyClick(focus, Qt::Key_Tab);
            if (window.focusWidget())
                stops.insert(window.focusWidget());
        }
        return stops;
    }

    // A button for the mouse beside a field that the keys can do the same to, one whose command has
    // keys of its own, and those of a panel, which the View menu shows and hides.
    static bool isReachedOtherwise(const QAbstractButton &button)
    {
        const auto *tool = qobject_cast<const QToolButton *>(&button);
        const QAction *action = tool ? tool->defaultAction() : nullptr;
        return (action && !action->shortcuts().isEmpty())
               || qobject_cast<const QLineEdit *>(button.parentWidget())
               || qobject_cast<const QDockWidget *>(button.parentWidget());
    }

    static void expectButtonsReached(QWidget &window)
    {
        const QSet<QWidget *> stops = tabStops(window);
        for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
            if (!button->isVisible() || !button->isEnabled() || button->window() != &window
                || isReachedOtherwise(*button))
                continue;
            EXPECT_TRUE(stops.contains(button))
                << qPrintable(window.objectName()) << ": " << qPrintable(button->objectName())
                << " " << qPrintable(button->text());
        }
    }
};

class PluginKeyboard : public Keyboard
{
protected:
    void SetUp() override { openWindowWithPlugins(QStringLiteral(QUILLMESH_PLUGIN_DIR)); }
};

QChar letterOf(const QString &text)
{
    QString plain = text;
    plain.remove(QStringLiteral("&&"));
    const int mark = plain.indexOf(QLatin1Char('&'));
    return mark < 0 || mark + 1 >= plain.size() ? QChar() : plain.at(mark + 1).toLower();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, Keyboard, testing::Values("en", "de"));
INSTANTIATE_TEST_SUITE_P(Language, PluginKeyboard, testing::Values("en"));

TEST_P(Keyboard, everyCommandHasATextAndStandsInAMenuOfTheBar)
{
    QSet<const QAction *> inMenus;
    QSet<QChar> letters;
    for (const QAction *action : m_window->menuBar()->actions()) {
        ASSERT_NE(action->menu(), nullptr) << qPrintable(action->text());
        const QChar letter = letterOf(action->text());
        EXPECT_FALSE(letter.isNull()) << qPrintable(action->text());
        EXPECT_FALSE(letters.contains(letter)) << qPrintable(action->text());
        letters.insert(letter);
        collect(*action->menu(), &inMenus);
    }
    int commands = 0;
    for (const QAction *action : inMenus) {
        if (action->isSeparator())
            continue;
        ++commands;
        EXPECT_FALSE(action->text().isEmpty()) << qPrintable(action->objectName());
    }
    EXPECT_GT(commands, 60);
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        const bool isCommand = !action->objectName().isEmpty() || !action->shortcuts().isEmpty();
        const bool isOfAField = qobject_cast<QLineEdit *>(action->parent());
        if (isCommand && !isOfAField) {
            EXPECT_TRUE(inMenus.contains(action)) << qPrintable(action->objectName());
        }
    }
}

TEST_P(Keyboard, noTwoEntriesOfAMenuHaveTheSameLetter)
{
    for (const QMenu *menu : m_window->menuBar()->findChildren<QMenu *>()) {
        QHash<QChar, QString> taken;
        for (const QAction *action : menu->actions()) {
            const QChar letter = letterOf(action->text());
            if (action->isSeparator() || letter.isNull())
                continue;
            EXPECT_FALSE(taken.contains(letter))
                << qPrintable(menu->title()) << ": " << qPrintable(action->text()) << " and "
                << qPrintable(taken.value(letter));
            taken.insert(letter, action->text());
        }
    }
}

TEST_P(Keyboard, everyMenuOpensByItsLetterAndItsEntriesByArrows)
{
    for (const QAction *title : m_window->menuBar()->actions()) {
        m_window->Viewport().setFocus();
        QTest::keyClick(m_window.data(), letterOf(title->text()).toLatin1(), Qt::AltModifier);
        settle();
        QMenu *menu = title->menu();
        EXPECT_TRUE(menu->isVisible()) << qPrintable(title->text());
        QSet<const QAction *> visited;
        for (int i = 0; i < 2 * menu->actions().size(); ++i) {
            QTest::keyClick(menu, Qt::Key_Down);
            visited.insert(menu->activeAction());
        }
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator() && action->isEnabled() && action->isVisible()) {
                EXPECT_TRUE(visited.contains(action)) << qPrintable(action->text());
            }
        }
        QTest::keyClick(menu, Qt::Key_Escape);
        QTest::keyClick(m_window.data(), Qt::Key_Escape);
        settle();
    }
}

TEST_P(Keyboard, everyToolButtonAndIconHasATextAndATip)
{
    int icons = 0;
    for (const QToolBar *bar : m_window->findChildren<QToolBar *>()) {
        for (QAction *action : bar->actions()) {
            const auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
            if (!button || action->isSeparator())
                continue;
            ++icons;
            EXPECT_FALSE(action->text().isEmpty()) << qPrintable(action->objectName());
            EXPECT_FALSE(button->toolTip().isEmpty()) << qPrintable(action->objectName());
            EXPECT_FALSE(action->statusTip().isEmpty()) << qPrintable(action->objectName());
        }
    }
    EXPECT_EQ(icons, 10);
    for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
        if (!button->isVisible())
            continue;
        const QString name = button->accessibleName() + button->text();
        EXPECT_FALSE(name.isEmpty() && button->toolTip().isEmpty())
            << button->metaObject()->className() << qPrintable(button->objectName()) << " in "
            << qPrintable(button->parentWidget()->objectName());
    }
}

TEST_P(Keyboard, tabReachesEveryPartOfTheWindow)
{
    m_window->Viewport().setFocus();
    const QSet<QWidget *> stops = tabStops(*m_window);
    for (const char *name : {"viewport", "sceneList", "commandLine", "macroButton", "strokeSpacing",
                             "strokeSmoothing", "brushRadius", "mirrorAxis", "snap"}) {
        auto *part = m_window->findChild<QWidget *>(QLatin1String(name));
        ASSERT_NE(part, nullptr) << name;
        EXPECT_TRUE(stops.contains(part)) << name;
    }
    const auto *bar = m_window->findChild<QToolBar *>(QStringLiteral("toolBar"));
    for (QAction *action : bar->actions())
        EXPECT_TRUE(stops.contains(bar->widgetForAction(action))) << qPrintable(action->text());
    expectButtonsReached(*m_window);
}

TEST_P(Keyboard, aToolButtonThatHasTheKeysChoosesItsTool)
{
    const auto *bar = m_window->findChild<QToolBar *>(QStringLiteral("toolBar"));
    QAction *erase = action("tool_erase");
    QWidget *button = bar->widgetForAction(erase);
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_TRUE(erase->isChecked());
    EXPECT_EQ(QApplication::focusWidget(), &m_window->Viewport()) << "ready to draw";
}

TEST_P(Keyboard, theStartPagesButtonsAreReached)
{
    action("newScene")->trigger();
    settle();
    expectButtonsReached(*m_window);
}

TEST_P(Keyboard, theButtonsOfEveryDialogAreReached)
{
    for (const char *name : {"preferences", "shortcuts", "about", "open"})
        inDialog(name, [](QWidget &dialog) { expectButtonsReached(dialog); });
    for (const char *name : {"macro", "log", "help"}) {
        action(name)->trigger();
        settle();
    }
    expectButtonsReached(*m_window->findChild<QWidget *>(QStringLiteral("macroDialog")));
    expectButtonsReached(*helpBrowser()->window());
}

TEST_P(PluginKeyboard, reachesAllOfTheSettings)
{
    const auto *mesh = m_window->findChild<QMenu *>(QStringLiteral("menuMesh"));
    ASSERT_NE(mesh, nullptr);
    bool seen = false;
    for (QAction *entry : mesh->actions()) {
        if (!entry->text().contains(QLatin1String("...")))
            continue;
        entry->trigger();
        settle();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->findChild<QWidget *>(QStringLiteral("createMesh"))
                && window != m_window.data()) {
                seen = true;
                expectButtonsReached(*window);
                window->close();
            }
        }
    }
    EXPECT_TRUE(seen) << "no settings";
}
