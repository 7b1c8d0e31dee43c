// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdio>

//! Writes text as UTF-8 to a stream of the process.
inline void print(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

inline void printLine(std::FILE *stream, const QString &text)
{
    print(stream, text + QLatin1Char('\n'));
}
