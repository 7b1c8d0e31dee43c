// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QElapsedTimer>
#include <QString>

namespace orvane {

//! A named stopwatch that adds up its laps. All timers of the process can be reset and logged.
class ORVANE_EXPORT Timer
{
public:
    explicit Timer(const QString &name);
    ~Timer();
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;

    const QString &Name() const { return m_name; }
    //! Sum of the finished laps, in seconds.
    double Seconds() const { return double(m_nanoseconds) * 1e-9; }

    void Start() { m_lap.start(); }
    //! Without a start before it, nothing.
    void Stop();
    void Reset() { m_nanoseconds = 0; }

    static void ResetAll();
    //! Writes one line to the log: each timer that ran, with its seconds.
    static void LogAll();

private:
    QString m_name;
    QElapsedTimer m_lap;
    qint64 m_nanoseconds = 0;
};

//! Runs a timer for one lap, from here to the end of the block.
class TimerLap
{
public:
    explicit TimerLap(Timer &timer) : m_timer(timer) { m_timer.Start(); }
    ~TimerLap() { m_timer.Stop(); }
    TimerLap(const TimerLap &) = delete;
    TimerLap &operator=(const TimerLap &) = delete;

private:
    Timer &m_timer;
};

} // namespace orvane
