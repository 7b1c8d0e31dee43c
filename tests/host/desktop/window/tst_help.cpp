// SPDX-License-Identifier: MIT
// What tells about the program: help pages, the sheet of shortcuts, the about box and the log.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"

#include "tests/host/widgets/helpwindow.h"

#include <orvane/base/log.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QTextTable>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

class Help : public WindowTest
{
protected:
    // The first line of a page as it lies in the folder of pages.
    static QString headingOf(const QString &page)
    {
        QFile file(QStringLiteral("Help/%1.md").arg(page));
        if (!file.open(QIODevice::ReadOnly))
            return QStringLiteral("no page %1").arg(page);
        return QString::fromUtf8(file.readLine()).remove(QLatin1Char('#')).trimmed();
    }

    void giveKeysBack()
    {
        settle();
        QApplication::setActiveWindow(m_window.data());
        m_window->Viewport().setFocus();
    }

    // What the dialog that the key opens says; it is closed by Esc.
    QString textOfDialog(const char *name, const char *part, const std::function<void()> &open)
    {
        QString text;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || dialog->objectName() != QLatin1String(name))
                return;
            timer.stop();
            if (auto *browser = dialog->findChild<QTextBrowser *>(QLatin1String(part)))
                text = browser->toPlainText();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        timer.start(10);
        open();
        return text;
    }
};

} // namespace

TEST_F(Help, f1ShowsTheFirstPage)
{
    press(Qt::Key_F1);
    EXPECT_EQ(helpText().section(QLatin1Char('\n'), 0, 0), headingOf(QStringLiteral("Orvane")));
    EXPECT_TRUE(helpBrowser()->isVisible());
}

TEST_F(Help, f2ShowsThePageOfTheToolInHand)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    QSet<QString> headings;
    for (const orvane::Tool *tool : m_window->Tools().Tools()) {
        const orvane::ToolDescription words = tool->Description();
        giveKeysBack();
        press(words.shortcut[0]);
        press(Qt::Key_F2);
        const QString heading = helpText().section(QLatin1Char('\n'), 0, 0);
        EXPECT_EQ(heading, headingOf(words.id)) << qPrintable(words.id);
        headings.insert(heading);
        helpBrowser()->window()->close();
    }
    EXPECT_EQ(headings.size(), m_window->Tools().Tools().size()) << "two tools share a page";
}

TEST_F(Help, theSearchFindsAToolsPageFromTheFirstPage)
{
    press(Qt::Key_F1);
    QTest::keyClick(helpBrowser(), Qt::Key_F, Qt::ControlModifier);
    auto *search = helpBrowser()->window()->findChild<QLineEdit *>(QStringLiteral("helpSearch"));
    ASSERT_TRUE(search && search->hasFocus());
    QTest::keyClicks(search, headingOf(QStringLiteral("lasso")));
    for (int i = 0; i < 30 && !helpText().startsWith(search->text()); ++i)
        QTest::keyClick(search, Qt::Key_Return);
    EXPECT_TRUE(helpText().startsWith(search->text())) << qPrintable(helpText().left(200));
    EXPECT_EQ(helpBrowser()->textCursor().selectedText().toLower(), search->text().toLower());
}

TEST_F(Help, theSheetListsWhatEveryKeyDoes)
{
    openWindowWithPlugins(QStringLiteral(QUILLMESH_PLUGIN_DIR));
    const QString sheet =
        textOfDialog("shortcutSheet", "shortcutText", [this] { press(Qt::Key_H); });
    ASSERT_FALSE(sheet.isEmpty());
    const QStringList lines = sheet.split(QLatin1Char('\n'));
    int listed = 0;
    for (const QAction *command : m_window->findChildren<QAction *>()) {
        if (command->shortcuts().isEmpty())
            continue;
        ++listed;
        const QString keys =
            QKeySequence::listToString(command->shortcuts(), QKeySequence::NativeText);
        QString text = QString(command->text()).remove(QLatin1Char('&'));
        text.remove(QStringLiteral("..."));
        // The keys are a cell of a table, the text is the next one.
        bool found = false;
        for (int i = 0; i + 1 < lines.size(); ++i)
            found =
                found
                || (lines[i].simplified() == keys && lines[i + 1].simplified() == text.trimmed());
        EXPECT_TRUE(found) << qPrintable(keys) << " " << qPrintable(text);
    }
    EXPECT_GT(listed, 45);
}

TEST_F(Help, theAboutBoxListsThePluginsThatAreLoaded)
{
    m_plugins.AddFolder(QStringLiteral(QUILLMESH_PLUGIN_DIR));
    openWindow(&m_plugins);
    const auto about = [this] {
        action("about")->trigger();
    };
    EXPECT_TRUE(textOfDialog("aboutDialog", "aboutText", about)
                    .contains(QStringLiteral("None was found.")));
    m_plugins.Load();
    m_plugins.Initialise();
    ASSERT_EQ(m_plugins.Entries().size(), 1);
    const orvane::PluginLoader::Entry entry = m_plugins.Entries().constFirst();
    const QString text = textOfDialog("aboutDialog", "aboutText", about);
    EXPECT_TRUE(text.contains(QCoreApplication::applicationVersion()));
    EXPECT_TRUE(text.contains(entry.name + QStringLiteral(" \u2013 at work"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(entry.description));
}

TEST_F(Help, theLogWindowShowsWhatWasLoggedBeforeAndSince)
{
    auto *log = m_window->findChild<QWidget *>(QStringLiteral("logWindow"));
    ASSERT_NE(log, nullptr);
    const auto *text = log->findChild<QPlainTextEdit *>();
    EXPECT_FALSE(log->isVisible());
    orvane::log(QStringLiteral("A line from before the window was looked at."));
    press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(log->isVisible());
    EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("from before")));
    orvane::log(QStringLiteral("A line that comes now."));
    settle();
    EXPECT_TRUE(text->toPlainText().endsWith(QStringLiteral("A line that comes now.")));
    log->close();
    openWindow();
    log = m_window->findChild<QWidget *>(QStringLiteral("logWindow"));
    EXPECT_TRUE(
        log->findChild<QPlainTextEdit *>()->toPlainText().contains(QStringLiteral("from before")))
        << "a new window begins with the log so far";
}
