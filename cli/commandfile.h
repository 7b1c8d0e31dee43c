// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

//! A line of a command file that is neither empty nor a comment.
struct CommandLine
{
    int number; // counted from 1
    QString text;
};

//! The commands of a text file, one a line, whatever way its lines end. Empty, and one sentence in
//! *error, when the file cannot be used: no text, a line too long, no command in it.
QVector<CommandLine> readCommands(const QString &path, QString *error);

//! What the tool will take in another way than the line looks: fields that are no numbers, blanks
//! that are none. A sentence without a full stop; empty when all is well.
QString doubtAbout(const QString &command);
