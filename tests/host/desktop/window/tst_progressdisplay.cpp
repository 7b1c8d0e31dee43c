// SPDX-License-Identifier: MIT
#include "host/desktop/window/progressdisplay.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

#include <limits>

using orvane::ProgressDisplay;

namespace {

// Counts how often it is painted.
class Counter : public QPushButton
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        QPushButton::paintEvent(event);
    }
};

class ProgressDisplayTest : public testing::Test
{
protected:
    ProgressDisplayTest() : m_counter(new Counter), m_progress(new ProgressDisplay(nullptr))
    {
        auto *layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_counter);
        layout->addWidget(m_progress);
        m_window.resize(400, 200);
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window))
            ADD_FAILURE() << "the window does not show";
        QTest::qWait(20);
    }

    QWidget m_window;
    Counter *m_counter;
    ProgressDisplay *m_progress;
};

} // namespace

TEST_F(ProgressDisplayTest, windowsArePaintedMeanwhile)
{
    m_progress->Start(QStringLiteral("stage"), 100);
    const int before = m_counter->paints;
    m_counter->update();
    QTest::qSleep(60);
    m_progress->Set(50);
    EXPECT_GT(m_counter->paints, before);
    EXPECT_NEAR(m_progress->Part(), 0.5, 0.001);
    EXPECT_TRUE(m_progress->isVisible());
    m_progress->End();
    EXPECT_FALSE(m_progress->isVisible());
}

TEST_F(ProgressDisplayTest, hugeAndStrayValuesAreHeld)
{
    const qint64 huge = std::numeric_limits<qint64>::max();
    m_progress->Set(5);
    EXPECT_FALSE(m_progress->IsRunning());
    m_progress->Start(QStringLiteral("stage"), huge);
    m_progress->Set(huge / 4);
    EXPECT_NEAR(m_progress->Part(), 0.25, 0.001);
    m_progress->Set(-1);
    EXPECT_EQ(m_progress->Part(), 0.0);
    m_progress->Start(QStringLiteral("nothing"), 0);
    m_progress->Set(3);
    EXPECT_EQ(m_progress->Part(), 1.0);
    m_progress->End();
}
