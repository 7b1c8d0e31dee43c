// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"

#include <QStringList>

//! How reading the words of a command ended.
struct ParseResult
{
    enum Kind { Run, ShowHelp, Wrong };

    Kind kind = Run;
    QString text; // the help, or what is wrong in one sentence
};

//! Each reads the words after the name of its command.
ParseResult parseBuild(const QStringList &words, BuildOptions &options);
ParseResult parseCheck(const QStringList &words, QString &mesh);
ParseResult parsePicture(const QStringList &words, PictureOptions &options);
ParseResult parseReplay(const QStringList &words, ReplayOptions &options);

//! The help of the program itself.
QString programHelp();
