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
    int slowness = 0; // milliseconds a picture

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        if (slowness > 0)
            QTest::qSleep(slowness);
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
    QTest::qSleep(200);
    m_progress->Set(50);
    EXPECT_GT(m_counter->paints, before);
    EXPECT_NEAR(m_progress->Part(), 0.5, 0.001);
    EXPECT_TRUE(m_progress->isVisible());
    m_progress->End();
    EXPECT_FALSE(m_progress->isVisible());
}

TEST_F(ProgressDisplayTest, whatIsThroughAtOnceIsNotShown)
{
    const int before = m_counter->paints;
    m_counter->update();
    for (int phase = 0; phase < 3; ++phase) {
        m_progress->Start(QStringLiteral("stage"), 2);
        m_progress->Set(1);
        EXPECT_FALSE(m_progress->isVisible());
        m_progress->End();
    }
    EXPECT_EQ(m_counter->paints, before);
}

TEST_F(ProgressDisplayTest, manyShortPhasesAreOneLongWork)
{
    int shown = 0;
    for (int phase = 0; phase < 40; ++phase) {
        m_progress->Start(QStringLiteral("stage"), 2);
        QTest::qSleep(10);
        m_progress->Set(1);
        shown += m_progress->isVisible();
        m_progress->End();
    }
    EXPECT_GT(shown, 0);
}

// The counter stands for a view that takes long to draw.
TEST_F(ProgressDisplayTest, aSlowWindowIsPaintedTheMoreSeldom)
{
    m_counter->slowness = 50;
    m_progress->Start(QStringLiteral("stage"), 1000);
    const int before = m_counter->paints;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 1500) {
        m_counter->update();
        m_progress->Set(time.elapsed());
        QTest::qSleep(1);
    }
    m_progress->End();
    EXPECT_GT(m_counter->paints, before);
    EXPECT_LE(m_counter->paints - before, 7) << "1500 ms, 50 for a picture, 200 between two";
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
