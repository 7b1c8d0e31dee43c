// SPDX-License-Identifier: MIT
#include "host/desktop/window/busycursor.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <gtest/gtest.h>

using orvane::BusyCursor;

namespace {

bool isWaiting()
{
    return QApplication::overrideCursor()
           && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

} // namespace

TEST(BusyCursor, isShownUntilEveryoneIsThrough)
{
    BusyCursor cursor(nullptr);
    cursor.SetBusy(true);
    cursor.SetBusy(true);
    cursor.SetBusy(false);
    EXPECT_TRUE(isWaiting());
    cursor.SetBusy(false);
    EXPECT_FALSE(isWaiting());
    cursor.SetBusy(false);
    EXPECT_FALSE(isWaiting());
}

TEST(BusyCursor, isNotShownOverAModalDialog)
{
    BusyCursor cursor(nullptr);
    cursor.SetBusy(true);
    QDialog dialog;
    bool waitingInDialog = true;
    bool modal = false;
    QTimer::singleShot(0, &dialog, [&] {
        waitingInDialog = isWaiting();
        modal = QApplication::activeModalWidget() == &dialog;
        dialog.accept();
    });
    dialog.exec();
    EXPECT_TRUE(modal);
    EXPECT_FALSE(waitingInDialog);
    EXPECT_TRUE(isWaiting());
    cursor.SetBusy(false);
    EXPECT_FALSE(isWaiting());
}

TEST(BusyCursor, goesWithItsOwner)
{
    {
        BusyCursor cursor(nullptr);
        cursor.SetBusy(true);
    }
    EXPECT_FALSE(isWaiting());
}
