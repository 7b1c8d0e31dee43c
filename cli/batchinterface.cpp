// SPDX-License-Identifier: MIT
#include "cli/batchinterface.h"

#include "cli/terminal.h"

#include <unistd.h>

namespace {

const int ShowEvery = 100; // milliseconds

} // namespace

BatchInterface::BatchInterface() : m_isTerminal(isatty(STDERR_FILENO) == 1) {}

void BatchInterface::ProgressStart(const QString &text, qint64 maximum, double, int)
{
    m_text = text;
    m_maximum = maximum;
    m_sinceShown.start();
    showProgress(0);
}

void BatchInterface::ProgressSet(qint64 value)
{
    if (m_sinceShown.elapsed() < ShowEvery)
        return;
    m_sinceShown.restart();
    showProgress(value);
}

void BatchInterface::ProgressEnd()
{
    showProgress(m_maximum);
    if (m_isTerminal)
        print(stderr, QStringLiteral("\n"));
}

void BatchInterface::showProgress(qint64 value)
{
    if (!m_isTerminal)
        return;
    const int percent = m_maximum > 0 ? int(100.0 * double(value) / double(m_maximum)) : 100;
    print(stderr, QStringLiteral("\r%1 %2 %").arg(m_text, -24).arg(percent, 3));
}

void BatchInterface::HUDMessageShow(const QString &text, int, int)
{
    printLine(stderr, text);
}
