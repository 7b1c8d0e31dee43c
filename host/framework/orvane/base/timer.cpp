// SPDX-License-Identifier: MIT
#include <orvane/base/timer.h>

#include <orvane/base/log.h>

#include <QVector>

namespace orvane {

namespace {

QVector<Timer *> &allTimers()
{
    static QVector<Timer *> timers;
    return timers;
}

} // namespace

Timer::Timer(const QString &name) : m_name(name)
{
    allTimers().append(this);
}

Timer::~Timer()
{
    allTimers().removeOne(this);
}

void Timer::Stop()
{
    if (!m_lap.isValid())
        return;
    m_nanoseconds += m_lap.nsecsElapsed();
    m_lap.invalidate();
}

void Timer::ResetAll()
{
    for (Timer *timer : qAsConst(allTimers()))
        timer->Reset();
}

void Timer::LogAll()
{
    QString line = QStringLiteral("Timers:");
    for (const Timer *timer : qAsConst(allTimers())) {
        if (timer->m_nanoseconds > 0)
            line += QStringLiteral(" %1 %2 s;").arg(timer->m_name).arg(timer->Seconds(), 0, 'f', 6);
    }
    log(line);
}

} // namespace orvane
