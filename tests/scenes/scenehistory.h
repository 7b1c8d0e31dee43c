// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/dialoganswer.h"
#include "tests/support/scenecleaner.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

//! Fixture of tests that save and open whole scenes, in a folder of its own that goes with the
//! test. Every fault dialog is accepted.
class SceneHistory : public SceneCleaner
{
protected:
    SceneHistory() : m_dialogs(QStringLiteral("accept")) {}

    QString path(const QString &name) const { return m_folder.filePath(name); }
    //! Two sheets, one of them turned, and strokes on both; then a history of creations among
    //! other operations, of which the last steps are undone.
    void makeHistory() const;
    //! Saves the scene under the name and answers the bytes of the file.
    QByteArray save(const QString &name) const;
    static QByteArray bytesOf(const QString &path);
    //! A file of those bytes; answers its path.
    QString file(const QString &name, const QByteArray &bytes) const;

private:
    QTemporaryDir m_folder;
    DialogAnswer m_dialogs;
};

//! Undoes or redoes as long as there is something to; answers how many steps it were.
int undoAll();
int redoAll();
