// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

//! Splits time into laps, one after the other.
class StageClock
{
public:
    StageClock() { m_timer.start(); }

    //! Seconds since the last lap, or since the clock was made.
    double lap()
    {
        const qint64 now = m_timer.nsecsElapsed();
        const qint64 nanoseconds = now - m_lastLap;
        m_lastLap = now;
        return double(nanoseconds) * 1e-9;
    }

private:
    QElapsedTimer m_timer;
    qint64 m_lastLap = 0;
};
