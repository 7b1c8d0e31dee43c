// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktopinterface.h"
#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/menus.h"
#include "host/desktop/window/progressdisplay.h"

#include "tests/support/numberoperation.h"
#include "tests/support/scenecleaner.h"

#include <orvane/kernel/kernel.h>

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::DesktopInterface;
using orvane::HudMessage;
using orvane::Kernel;
using orvane::Menus;
using orvane::ProgressDisplay;

namespace {

class DesktopInterfaceTest : public SceneCleaner
{
protected:
    DesktopInterfaceTest()
        : m_menus(m_window.menuBar()),
          m_progress(&m_window),
          m_message(&m_window),
          m_interface({&m_window, &m_menus, &m_progress, &m_message, &m_report})
    {
        m_menus.AddMenu(QStringLiteral("Mesh"), QStringLiteral("&Mesh"));
        m_menus.AddMenu(QStringLiteral("Help"), QStringLiteral("&Help"));
        m_window.show();
    }

    QMainWindow m_window;
    Menus m_menus;
    ProgressDisplay m_progress;
    HudMessage m_message;
    QLabel m_report;
    DesktopInterface m_interface;
};

} // namespace

TEST_F(DesktopInterfaceTest, isTheKernelsForItsLife)
{
    EXPECT_EQ(Kernel()->Interface(), &m_interface);
    EXPECT_EQ(Kernel()->Interface()->MainWindow(), &m_window);
}

TEST_F(DesktopInterfaceTest, aMenuItemOfAPlugInRunsItsCallback)
{
    int runs = 0;
    m_interface.AddCallbackMenuItem(
        QStringLiteral("Mesh"), QStringLiteral("Deep"), QStringLiteral("Do It"),
        [&runs] { ++runs; }, QStringLiteral("doIt"), 100, true, 1);
    auto *action = m_window.findChild<QAction *>(QStringLiteral("doIt"));
    ASSERT_NE(action, nullptr);
    EXPECT_TRUE(action->isCheckable());
    action->trigger();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(m_interface.MenuItems().size(), 1);
    QMenu *deep = m_menus.Menu(QStringLiteral("Mesh"))->actions().value(0)->menu();
    ASSERT_NE(deep, nullptr);
    EXPECT_EQ(deep->actions().value(0), action);
}

TEST_F(DesktopInterfaceTest, aReportStaysUntilTheNext)
{
    Kernel()->Interface()->ReportShow(QStringLiteral("Faces: 3."));
    QTest::qWait(10);
    EXPECT_EQ(m_report.text(), QStringLiteral("Faces: 3."));
    Kernel()->Interface()->ReportShow(QString());
    EXPECT_TRUE(m_report.text().isEmpty());
}

TEST_F(DesktopInterfaceTest, refreshingIsDoneOnceAndSoon)
{
    QSignalSpy refreshed(&m_interface, &DesktopInterface::refreshed);
    m_interface.RefreshUI();
    m_interface.RefreshUI();
    EXPECT_EQ(refreshed.count(), 0);
    QTest::qWait(10);
    EXPECT_EQ(refreshed.count(), 1);
}

TEST_F(DesktopInterfaceTest, refreshingWaitsForARunningOperation)
{
    QSignalSpy refreshed(&m_interface, &DesktopInterface::refreshed);
    static int during;
    static QSignalSpy *spy;
    during = -1;
    spy = &refreshed;
    NumberOperation::whileRunning = [] {
        Kernel()->Interface()->RefreshUI();
        QTest::qWait(30);
        during = spy->count();
    };
    NumberOperation operation(1);
    ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
    NumberOperation::whileRunning = nullptr;
    EXPECT_EQ(during, 0);
    QTest::qWait(100);
    EXPECT_GE(refreshed.count(), 1);
}

TEST_F(DesktopInterfaceTest, whatTheUserDoesNextTakesAMessageDown)
{
    m_interface.HUDMessageShow(QStringLiteral("Careful"), 1, 100000);
    EXPECT_TRUE(m_interface.IsHUDMessageUp());
    EXPECT_TRUE(m_message.IsWarning());
    QTest::mouseMove(&m_window, QPoint(5, 5));
    QTest::keyClick(&m_window, Qt::Key_Control);
    EXPECT_TRUE(m_interface.IsHUDMessageUp());
    QTest::mouseClick(&m_window, Qt::LeftButton);
    EXPECT_FALSE(m_interface.IsHUDMessageUp());
}

TEST_F(DesktopInterfaceTest, progressIsShown)
{
    m_interface.ProgressStart(QStringLiteral("stage"), 10, 1.0, 0);
    m_interface.ProgressSet(5);
    EXPECT_EQ(m_progress.Text(), QStringLiteral("stage"));
    EXPECT_NEAR(m_progress.Part(), 0.5, 0.001);
    m_interface.ProgressEnd();
    EXPECT_FALSE(m_progress.IsRunning());
}
