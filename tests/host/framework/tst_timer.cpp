// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"

#include <orvane/base/timer.h>

#include <gtest/gtest.h>

#include <QThread>

using orvane::Timer;
using orvane::TimerLap;

namespace {

void spend(Timer &timer, unsigned long milliseconds)
{
    const TimerLap lap(timer);
    QThread::msleep(milliseconds);
}

} // namespace

TEST(Timer, addsUpItsLaps)
{
    Timer timer(QStringLiteral("laps"));
    EXPECT_EQ(timer.Seconds(), 0.0);
    spend(timer, 20);
    const double first = timer.Seconds();
    EXPECT_GE(first, 0.020);
    spend(timer, 10);
    EXPECT_GE(timer.Seconds(), first + 0.010);
}

TEST(Timer, countsNothingBetweenLaps)
{
    Timer timer(QStringLiteral("pause"));
    spend(timer, 1);
    const double before = timer.Seconds();
    QThread::msleep(20);
    EXPECT_EQ(timer.Seconds(), before);
}

TEST(Timer, ignoresAStopWithoutAStart)
{
    Timer timer(QStringLiteral("stop"));
    timer.Stop();
    EXPECT_EQ(timer.Seconds(), 0.0);
    spend(timer, 1);
    const double before = timer.Seconds();
    QThread::msleep(5);
    timer.Stop();
    EXPECT_EQ(timer.Seconds(), before);
}

TEST(Timer, resetsAllTimersOfTheProcess)
{
    Timer one(QStringLiteral("one"));
    Timer two(QStringLiteral("two"));
    spend(one, 1);
    spend(two, 1);
    Timer::ResetAll();
    EXPECT_EQ(one.Seconds(), 0.0);
    EXPECT_EQ(two.Seconds(), 0.0);
}

TEST(Timer, logsOneLineOfTheTimersThatRan)
{
    Timer ran(QStringLiteral("ran"));
    Timer idle(QStringLiteral("idle"));
    spend(ran, 1);
    LogCatcher log;
    Timer::LogAll();
    ASSERT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().contains(QStringLiteral("ran 0.0")));
    EXPECT_FALSE(log.text().contains(QStringLiteral("idle")));
}

TEST(Timer, isForgottenWhenItIsDestroyed)
{
    {
        Timer gone(QStringLiteral("gone"));
        spend(gone, 1);
    }
    LogCatcher log;
    Timer::ResetAll();
    Timer::LogAll();
    EXPECT_FALSE(log.text().contains(QStringLiteral("gone")));
}
