// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class QSettings;

namespace orvane {

struct RecentFile
{
    QString path;
    bool isMissing = false; // now: it may be on a disk that comes back
};

//! The files opened or saved last, kept in the settings, which other windows may share.
class RecentFiles
{
public:
    static const int MaximumCount;

    //! The settings are not owned.
    explicit RecentFiles(QSettings *settings) : m_settings(settings) {}

    //! The newest first.
    QVector<RecentFile> Files() const;
    //! Puts it first. Its path is kept in full.
    void Add(const QString &path);
    void Remove(const QString &path);
    void Clear();

private:
    QStringList paths() const;
    void setPaths(const QStringList &paths);

    QSettings *m_settings;
};

} // namespace orvane
