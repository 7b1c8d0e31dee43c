// SPDX-License-Identifier: MIT
// No text of the window or its dialogs is cut off, at the smallest size that it promises.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"

#include "tests/host/widgets/helpwindow.h"

#include <orvane/kernel/language.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

const QSize Smallest(1280, 720);
const int LayoutTime = 3000; // milliseconds

class TextFits : public WindowTest, public testing::WithParamInterface<const char *>
{
protected:
    TextFits()
    {
        orvane::setLanguage(orvane::resourceFolder() + QStringLiteral("/Translations"),
                            QLatin1String(GetParam()));
        openWindow();
        m_window->resize(Smallest);
        settle();
    }
    ~TextFits() override
    {
        m_window.reset();
        orvane::setLanguage(QString(), QStringLiteral("en"));
    }

    void openExample()
    {
        ASSERT_TRUE(m_window->Files().OpenExample());
        settle();
        ASSERT_EQ(m_window->size(), Smallest);
    }

    // How many parts were looked at.
    static int expectAllFit(const QWidget &window)
    {
        int parts = 0;
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->window() != &window)
                continue;
            ++parts;
            // What was filled is laid out when the window has time for it.
            const bool fits =
                QTest::qWaitFor([widget] { return cutText(*widget).isEmpty(); }, LayoutTime);
            const QString cut = fits ? QString() : cutText(*widget);
            EXPECT_TRUE(cut.isEmpty())
                << qPrintable(window.objectName()) << ": " << widget->metaObject()->className()
                << " " << qPrintable(widget->objectName()) << " cuts \"" << qPrintable(cut)
                << "\" at " << widget->width() << " x " << widget->height() << ", it would be "
                << widget->sizeHint().width() << " x " << widget->sizeHint().height();
        }
        return parts;
    }

    // The text that does not fit; empty when all does.
    static QString cutText(const QWidget &widget)
    {
        if (isBeyondItsParent(widget))
            return QStringLiteral("(beyond %1)").arg(widget.parentWidget()->objectName());
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            return fits(*label) ? QString() : label->text();
        if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            return fits(*button) ? QString() : button->text();
        if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
            return cutTab(*bar);
        if (const auto *box = qobject_cast<const QComboBox *>(&widget))
            return box->width() >= box->sizeHint().width() ? QString() : box->currentText();
        if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
            return isWide(*group, group->title(), group->width()) ? QString() : group->title();
        if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
            return isWide(*edit, edit->placeholderText(), edit->width() - 8)
                       ? QString()
                       : edit->placeholderText();
        if (const auto *bar = qobject_cast<const QStatusBar *>(&widget))
            return isWide(*bar, bar->currentMessage(), bar->width() - 24) ? QString()
                                                                          : bar->currentMessage();
        return QString();
    }

    // Laid out larger than the place there is.
    static bool isBeyondItsParent(const QWidget &widget)
    {
        const bool hasText = qobject_cast<const QLabel *>(&widget)
                             || qobject_cast<const QAbstractButton *>(&widget)
                             || qobject_cast<const QComboBox *>(&widget);
        const QWidget *parent = widget.parentWidget();
        return hasText && parent && !parent->rect().contains(widget.geometry());
    }

    static bool isWide(const QWidget &widget, const QString &text, int width)
    {
        return widget.fontMetrics().horizontalAdvance(text) <= width;
    }

    static bool fits(const QLabel &label)
    {
        if (label.text().isEmpty() || !label.pixmap(Qt::ReturnByValue).isNull())
            return true;
        if (label.wordWrap())
            return label.heightForWidth(label.width()) <= label.height();
        return label.sizeHint().width() <= label.width()
               && label.sizeHint().height() <= label.height();
    }

    static bool fits(const QAbstractButton &button)
    {
        if (button.text().isEmpty())
            return true;
        if (button.hasHeightForWidth())
            return button.heightForWidth(button.width()) <= button.height();
        // A tool button may show its icon alone.
        const QFontMetrics metrics = button.fontMetrics();
        const auto *tool = qobject_cast<const QToolButton *>(&button);
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull())
            return tool->width() >= tool->iconSize().width();
        return metrics.horizontalAdvance(QString(button.text()).remove(QLatin1Char('&')))
                   <= button.width()
               && metrics.height() <= button.height()
               && button.sizeHint().width() <= button.width();
    }

    static QString cutTab(const QTabBar &bar)
    {
        for (int i = 0; i < bar.count(); ++i) {
            const bool isIn = bar.rect().contains(bar.tabRect(i));
            if (!isIn || !isWide(bar, bar.tabText(i), bar.tabRect(i).width()))
                return bar.tabText(i);
        }
        return QString();
    }

    void expectDialogFits(const char *name)
    {
        inDialog(name, [](QWidget &dialog) { expectAllFit(dialog); });
    }
};

class PluginTextFits : public TextFits
{
protected:
    void SetUp() override { openWindowWithPlugins(QStringLiteral(QUILLMESH_PLUGIN_DIR)); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, TextFits, testing::Values("en", "de"));
INSTANTIATE_TEST_SUITE_P(Language, PluginTextFits, testing::Values("de"));

TEST_P(TextFits, onTheStartPage)
{
    // Names of files are as long as people make them.
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    action("newScene")->trigger();
    settle();
    EXPECT_EQ(m_window->size(), Smallest);
    EXPECT_GT(expectAllFit(*m_window), 20);
}

TEST_P(TextFits, whileDrawing)
{
    openExample();
    EXPECT_GT(expectAllFit(*m_window), 20);
}

TEST_P(TextFits, inTheStatusLineWithEveryTool)
{
    openExample();
    for (const orvane::Tool *tool : m_window->Tools().Tools()) {
        action(("tool_" + tool->Description().id.toLatin1()).constData())->trigger();
        settle();
        EXPECT_EQ(m_window->statusBar()->currentMessage(), tool->Description().hint);
        EXPECT_TRUE(cutText(*m_window->statusBar()).isEmpty())
            << qPrintable(tool->Description().hint);
    }
}

TEST_P(TextFits, allPartsAreThereOnASmallScreen)
{
    openExample();
    const QRect all = m_window->rect();
    for (const char *name :
         {"viewport", "sceneList", "sceneDock", "commandBar", "toolBar", "strokeBar", "viewHud"}) {
        const auto *part = m_window->findChild<QWidget *>(QLatin1String(name));
        ASSERT_TRUE(part && part->isVisible()) << name;
        const QRect place(part->mapTo(m_window.data(), QPoint()), part->size());
        EXPECT_TRUE(all.contains(place)) << name;
    }
    // No bar hides entries behind an arrow.
    for (const QWidget *more :
         m_window->findChildren<QWidget *>(QStringLiteral("qt_toolbar_ext_button")))
        EXPECT_FALSE(more->isVisible()) << qPrintable(more->parentWidget()->objectName());
    for (const QWidget *more :
         m_window->findChildren<QWidget *>(QStringLiteral("qt_menubar_ext_button")))
        EXPECT_FALSE(more->isVisible());
    const QMenuBar *menus = m_window->menuBar();
    for (QAction *title : menus->actions())
        EXPECT_TRUE(menus->rect().contains(menus->actionGeometry(title)));
    EXPECT_GT(m_window->Viewport().width(), 600);
    EXPECT_GT(m_window->Viewport().height(), 400);
}

TEST_P(TextFits, everyMenuFitsTheScreen)
{
    openExample();
    for (const QAction *title : m_window->menuBar()->actions()) {
        const QSize size = title->menu()->sizeHint();
        EXPECT_LE(size.width(), Smallest.width()) << qPrintable(title->text());
        EXPECT_LE(size.height(), Smallest.height()) << qPrintable(title->text());
    }
}

TEST_P(TextFits, inEveryDialog)
{
    openExample();
    for (const char *name : {"preferences", "shortcuts", "about"})
        expectDialogFits(name);
    for (const char *name : {"macro", "log", "help"}) {
        action(name)->trigger();
        settle();
    }
    expectAllFit(*m_window->findChild<QWidget *>(QStringLiteral("macroDialog")));
    expectAllFit(*helpBrowser()->window());
}

TEST_P(PluginTextFits, inTheSettings)
{
    bool seen = false;
    for (QAction *entry : m_window->findChild<QMenu *>(QStringLiteral("menuMesh"))->actions()) {
        if (!entry->text().contains(QLatin1String("...")))
            continue;
        entry->trigger();
        settle();
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->findChild<QWidget *>(QStringLiteral("createMesh"))) {
                seen = true;
                expectAllFit(*window);
            }
        }
    }
    EXPECT_TRUE(seen);
}

// The sheet of shortcuts is read at a glance, not rolled.
TEST_P(TextFits, theShortcutSheetNeedsNoRolling)
{
    bool seen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        timer.stop();
        const auto *text = dialog->findChild<QTextBrowser *>(QStringLiteral("shortcutText"));
        seen = text != nullptr;
        EXPECT_LE(text->document()->size().height(), text->viewport()->height());
        EXPECT_LE(text->document()->idealWidth(), text->viewport()->width());
        EXPECT_LE(dialog->height(), Smallest.height());
        dialog->close();
    });
    timer.start(50);
    action("shortcuts")->trigger();
    EXPECT_TRUE(seen);
}
