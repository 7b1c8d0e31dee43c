// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

class QImage;

//! An empty folder as the working directory for its life.
class WorkingFolder
{
public:
    WorkingFolder();
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder &) = delete;
    WorkingFolder &operator=(const WorkingFolder &) = delete;

    //! Writes a file, making the folders it lies in. path: relative.
    void write(const QString &path, const QString &text);
    void write(const QString &path, const QImage &image);

private:
    QTemporaryDir m_folder;
    QString m_before;
};
