// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

//! One text of a translation's source file.
struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = false;

    //! What the program asks for.
    QString key() const { return context + QLatin1String(": ") + source; }
};

//! The folder with the translations' source files, and the files' names.
QString messageFolder();
QStringList messageFiles();
//! Every message of a file, obsolete ones too; the test stops when it cannot be read.
QVector<Message> messagesOf(const QString &path);
//! Those of all files of a language.
QVector<Message> messagesIn(const QString &language);
QStringList keysOf(const QVector<Message> &messages);
//! The translation of just this text; the test stops when there is none.
QString translationOf(const QVector<Message> &messages, const char *context, const char *source);
