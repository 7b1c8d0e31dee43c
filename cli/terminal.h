// SPDX-License-Identifier: MIT
#pragma once

#include "cli/exitcode.h"

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

//! Says the sentence about a file on the error stream and answers the exit code for it.
inline int fileTrouble(const QString &error)
{
    printLine(stderr, error);
    return ExitFileTrouble;
}
