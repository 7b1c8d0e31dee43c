// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>

//! Splits the processor time of the program, all its threads, into laps: what other programs take
//! away from it on a busy machine does not count.
class ProcessorClock
{
public:
    ProcessorClock() : m_lastLap(now()) {}

    //! Seconds since the last lap, or since the clock was made.
    double lap()
    {
        const double before = m_lastLap;
        m_lastLap = now();
        return m_lastLap - before;
    }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    }

    double m_lastLap; // seconds
};
