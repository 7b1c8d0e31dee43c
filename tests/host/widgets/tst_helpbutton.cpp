// SPDX-License-Identifier: MIT
#include "tests/host/widgets/helpwindow.h"
#include "tests/support/workingfolder.h"

#include <orvane/widgets/helpbutton.h>

#include <QTextBrowser>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::HelpButton;

namespace {

class HelpButtonTest : public testing::Test
{
protected:
    HelpButtonTest()
    {
        m_folder.write(QStringLiteral("Help/ManualRetopoHelp.md"),
                       QStringLiteral("# New meshes\n\nDraw curves that cross.\n"));
        m_folder.write(QStringLiteral("Help/Other.md"), QStringLiteral("# Something else\n"));
        m_window.setLayout(new QVBoxLayout);
    }

    HelpButton *addButton(const QString &helpID)
    {
        auto *button = new HelpButton(&m_window, helpID, QStringLiteral("Tell me more..."));
        m_window.layout()->addWidget(button);
        m_window.show();
        return button;
    }

    WorkingFolder m_folder;
    QWidget m_window;
};

} // namespace

TEST_F(HelpButtonTest, isAPushButtonWithItsLabelInItsParent)
{
    const HelpButton *button = addButton(QStringLiteral("ManualRetopoHelp"));
    EXPECT_EQ(button->text(), QStringLiteral("Tell me more..."));
    EXPECT_EQ(button->parentWidget(), &m_window);
    EXPECT_EQ(m_window.findChildren<HelpButton *>().size(), 1);
}

TEST_F(HelpButtonTest, showsThePageOfItsIdentifierWhenClicked)
{
    HelpButton *button = addButton(QStringLiteral("ManualRetopoHelp"));
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_EQ(helpWindows().size(), 1);
    EXPECT_TRUE(helpBrowser()->isVisible());
    EXPECT_EQ(helpText(), QStringLiteral("New meshes\nDraw curves that cross."));
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(HelpButtonTest, showsItWhenPressedByTheKeyboardToo)
{
    HelpButton *button = addButton(QStringLiteral("Other"));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(helpText(), QStringLiteral("Something else"));
}

TEST_F(HelpButtonTest, eachButtonKeepsItsOwnIdentifier)
{
    HelpButton *first = addButton(QStringLiteral("ManualRetopoHelp"));
    HelpButton *second = addButton(QStringLiteral("Other"));
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_EQ(helpText(), QStringLiteral("Something else"));
    QTest::mouseClick(first, Qt::LeftButton);
    EXPECT_EQ(helpText(), QStringLiteral("New meshes\nDraw curves that cross."));
}

TEST_F(HelpButtonTest, aDisabledButtonShowsNothing)
{
    HelpButton *button = addButton(QStringLiteral("Other"));
    QTest::mouseClick(button, Qt::LeftButton);
    helpBrowser()->window()->close();
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(helpBrowser()->isVisible());
}
