// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"

#include <orvane/base/log.h>

LogCatcher::LogCatcher()
{
    orvane::setLogSink([this](const QString &text) { m_texts.append(text); });
}

LogCatcher::~LogCatcher()
{
    orvane::setLogSink({});
}
