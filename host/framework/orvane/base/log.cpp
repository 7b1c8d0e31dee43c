// SPDX-License-Identifier: MIT
#include <orvane/base/log.h>

#include <QQueue>

#include <utility>

namespace orvane {

namespace {

const int KeptTexts = 5000; // count

struct LogState
{
    QQueue<QString> texts;
    LogSink sink;
};

LogState &state()
{
    static LogState instance;
    return instance;
}

} // namespace

void log(const QString &text)
{
    QQueue<QString> &texts = state().texts;
    if (texts.size() == KeptTexts)
        texts.dequeue();
    texts.enqueue(text);
    if (state().sink)
        state().sink(text);
}

void setLogSink(LogSink sink)
{
    state().sink = std::move(sink);
}

QStringList recentLog()
{
    return QStringList(state().texts);
}

} // namespace orvane
