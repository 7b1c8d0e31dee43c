// SPDX-License-Identifier: MIT
#include "host/desktop/window/commandbar.h"
#include "host/desktop/window/macrodialog.h"

#include "tests/support/scenecleaner.h"
#include "tests/support/workingfolder.h"

#include <orvane/kernel/kernel.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::CommandBar;
using orvane::Kernel;
using orvane::MacroDialog;

namespace {

// Notes every command that is set, as a plug-in follows them.
class Follower : public orvane::Node
{
public:
    Follower() : m_command(this, QStringLiteral("follower"))
    {
        m_command.Connect(&Kernel()->CommandAttribute(), false);
    }
    void OnNodeEvent(const orvane::Attribute &, orvane::NodeEventType type) override
    {
        if (type == orvane::NodeEventValueChanged)
            commands.append(m_command.Value());
    }

    QStringList commands;

private:
    orvane::AttributeInstance<QString> m_command;
};

class CommandBarTest : public SceneCleaner
{
protected:
    CommandBarTest() { m_bar.show(); }

    void type(const char *text)
    {
        QTest::keyClicks(m_bar.Edit(), QLatin1String(text));
        QTest::keyClick(m_bar.Edit(), Qt::Key_Return);
    }

    Follower m_follower;
    CommandBar m_bar;
};

} // namespace

TEST_F(CommandBarTest, enterCarriesOutWhatWasTyped)
{
    type("make 5");
    type("make 5");
    type("   ");
    EXPECT_EQ(m_follower.commands,
              QStringList({QStringLiteral("make 5"), QStringLiteral("make 5")}));
    EXPECT_TRUE(m_bar.Edit()->text().isEmpty());
}

TEST_F(CommandBarTest, upAndDownGoThroughTheHistory)
{
    type("one");
    type("two");
    QTest::keyClicks(m_bar.Edit(), QStringLiteral("thr"));
    QTest::keyClick(m_bar.Edit(), Qt::Key_Up);
    EXPECT_EQ(m_bar.Edit()->text(), QStringLiteral("two"));
    QTest::keyClick(m_bar.Edit(), Qt::Key_Up);
    QTest::keyClick(m_bar.Edit(), Qt::Key_Up);
    EXPECT_EQ(m_bar.Edit()->text(), QStringLiteral("one"));
    QTest::keyClick(m_bar.Edit(), Qt::Key_Down);
    QTest::keyClick(m_bar.Edit(), Qt::Key_Down);
    EXPECT_EQ(m_bar.Edit()->text(), QStringLiteral("thr"));
}

TEST_F(CommandBarTest, escapeGivesTheKeysBack)
{
    QSignalSpy left(&m_bar, &CommandBar::left);
    QTest::keyClick(m_bar.Edit(), Qt::Key_Escape);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(CommandBarTest, aMacroIsRecordedEditedSavedAndReplayed)
{
    const WorkingFolder folder;
    const int before = Kernel()->RecordedCommands().size();
    Kernel()->RecordCommand(QStringLiteral("make 5"));
    Kernel()->RecordCommand(QStringLiteral("make 6"));
    MacroDialog dialog(nullptr);
    dialog.Refresh();
    dialog.Refresh(); // adds nothing twice
    auto *text = dialog.findChild<QPlainTextEdit *>(QStringLiteral("macroText"));
    ASSERT_NE(text, nullptr);
    QStringList lines = text->toPlainText().split(QLatin1Char('\n'));
    EXPECT_EQ(lines.mid(before), QStringList({QStringLiteral("make 5"), QStringLiteral("make 6")}));
    text->setPlainText(QStringLiteral("# a remark\nmake 7\n\n  make 8\n"));

    QString error;
    ASSERT_TRUE(dialog.Save(QStringLiteral("macro.txt"), &error)) << qPrintable(error);
    MacroDialog other(nullptr);
    ASSERT_TRUE(other.Load(QStringLiteral("macro.txt"), &error)) << qPrintable(error);
    other.findChild<QPushButton *>(QStringLiteral("replayMacro"))->click();
    EXPECT_EQ(m_follower.commands,
              QStringList({QStringLiteral("make 7"), QStringLiteral("make 8")}));
}

TEST_F(CommandBarTest, aMacroThatCannotBeWrittenOrReadSaysSo)
{
    MacroDialog dialog(nullptr);
    QString error;
    EXPECT_FALSE(dialog.Save(QStringLiteral("/no/such/folder/macro.txt"), &error));
    EXPECT_TRUE(error.contains(QStringLiteral("macro.txt")));
    error.clear();
    EXPECT_FALSE(dialog.Load(QStringLiteral("/no/such/folder/macro.txt"), &error));
    EXPECT_TRUE(error.contains(QStringLiteral("macro.txt")));
}
