// SPDX-License-Identifier: MIT
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/viewport.h>

#include <gtest/gtest.h>

#include <limits>

using orvane::Interface;

TEST(Interface, showsNothingByItself)
{
    Interface interface;
    EXPECT_EQ(interface.MainWindow(), nullptr);
    interface.HUDMessageShow(QStringLiteral("text"), 1, 4000);
    EXPECT_FALSE(interface.IsHUDMessageUp());
    interface.ProgressStart(QStringLiteral("text"), std::numeric_limits<qint64>::max(), 1.0, 0);
    interface.ProgressSet(1);
    interface.ProgressEnd();
    interface.RefreshUI();
    interface.SetBusy(true);
    EXPECT_TRUE(interface.MenuItems().isEmpty());
}

TEST(Interface, keepsTheMenuItemsOfPlugIns)
{
    Interface interface;
    int calls = 0;
    interface.AddCallbackMenuItem(
        Interface::menuMesh, QString(), QStringLiteral("Label"), [&calls]() { ++calls; },
        QStringLiteral("id"), 800, true, 1);
    ASSERT_EQ(interface.MenuItems().size(), 1);
    const orvane::MenuItem &item = interface.MenuItems().first();
    EXPECT_EQ(item.menu, Interface::menuMesh);
    EXPECT_TRUE(item.subMenu.isEmpty());
    EXPECT_EQ(item.label, QStringLiteral("Label"));
    EXPECT_EQ(item.id, QStringLiteral("id"));
    EXPECT_EQ(item.position, 800);
    EXPECT_TRUE(item.checkable);
    EXPECT_EQ(item.kind, 1);
    item.callback();
    EXPECT_EQ(calls, 1);
}

TEST(ViewPort, drawsNothingByItselfAndOwnsItsGate)
{
    orvane::ViewPort view;
    view.Redraw(orvane::RedrawAll, 0, 0, 0, 0);
    EXPECT_EQ(int(orvane::RedrawAll), 0);
    EXPECT_EQ(view.EndRenderEvent().Owner(), &view);
    EXPECT_EQ(view.AttributeByID(view.EndRenderEvent().ID()), &view.EndRenderEvent());
}
