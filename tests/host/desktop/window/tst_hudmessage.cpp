// SPDX-License-Identifier: MIT
#include "host/desktop/window/hudmessage.h"

#include <QtTest>

#include <gtest/gtest.h>

using orvane::HudMessage;

namespace {

class HudMessageTest : public testing::Test
{
protected:
    HudMessageTest() : m_message(new HudMessage(&m_view))
    {
        m_view.resize(800, 500);
        m_view.show();
    }

    QWidget m_view;
    HudMessage *m_message;
};

} // namespace

TEST_F(HudMessageTest, fadesByItself)
{
    m_message->Show(QStringLiteral("Hello"), false, 30);
    EXPECT_TRUE(m_message->IsUp());
    EXPECT_EQ(m_message->Strength(), 1.0);
    double weakest = 1.0;
    bool wasBetween = false;
    QElapsedTimer time;
    time.start();
    while (m_message->IsUp() && time.elapsed() < 5000) {
        QTest::qWait(5);
        weakest = qMin(weakest, m_message->Strength());
        wasBetween = wasBetween || (m_message->Strength() > 0.1 && m_message->Strength() < 0.9);
    }
    EXPECT_FALSE(m_message->IsUp());
    EXPECT_TRUE(wasBetween) << "it vanished at once, weakest " << weakest;
}

TEST_F(HudMessageTest, staysWhileNothingHandlesEvents)
{
    m_message->Show(QStringLiteral("Hello"), false, 1);
    QTest::qSleep(30);
    EXPECT_TRUE(m_message->IsUp());
}

TEST_F(HudMessageTest, aNewMessageTakesThePlaceOfTheOld)
{
    m_message->Show(QStringLiteral("One"), false, 1);
    QTest::qWait(100);
    m_message->Show(QStringLiteral("Two"), true, 100000);
    QTest::qWait(600); // longer than the first would have taken to fade
    EXPECT_TRUE(m_message->IsUp());
    EXPECT_EQ(m_message->Strength(), 1.0);
    EXPECT_EQ(m_message->Text(), QStringLiteral("Two"));
    EXPECT_TRUE(m_message->IsWarning());
}

TEST_F(HudMessageTest, longTextsStayInsideTheView)
{
    m_view.resize(300, 500);
    m_message->Show(
        QStringLiteral("A sentence that is much longer than the view is wide. ").repeated(3), false,
        100000);
    EXPECT_TRUE(m_view.rect().contains(m_message->geometry()));
    m_view.resize(700, 500);
    QTest::qWait(1);
    EXPECT_NEAR(m_message->geometry().center().x(), 350, 2);
}

TEST_F(HudMessageTest, letsTheMouseThrough)
{
    m_message->Show(QStringLiteral("Hello"), false, 100000);
    EXPECT_EQ(m_view.childAt(m_message->geometry().center()), nullptr);
}
