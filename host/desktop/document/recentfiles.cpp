// SPDX-License-Identifier: MIT
#include "host/desktop/document/recentfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

namespace orvane {

namespace {

const QString Key = QStringLiteral("RecentFiles");

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

const int RecentFiles::MaximumCount = 12;

QVector<RecentFile> RecentFiles::Files() const
{
    QVector<RecentFile> files;
    for (const QString &path : paths())
        files.append({path, !QFileInfo(path).isFile()});
    return files;
}

void RecentFiles::Add(const QString &path)
{
    if (path.isEmpty())
        return;
    QStringList all = paths();
    all.removeAll(fullPath(path));
    all.prepend(fullPath(path));
    setPaths(all.mid(0, MaximumCount));
}

void RecentFiles::Remove(const QString &path)
{
    QStringList all = paths();
    all.removeAll(fullPath(path));
    setPaths(all);
}

void RecentFiles::Clear()
{
    setPaths({});
}

QStringList RecentFiles::paths() const
{
    m_settings->sync(); // another window may have added some
    // Someone may have edited the settings by hand.
    QStringList all = m_settings->value(Key).toStringList();
    all.removeAll(QString());
    all.removeDuplicates();
    return all.mid(0, MaximumCount);
}

void RecentFiles::setPaths(const QStringList &paths)
{
    m_settings->setValue(Key, paths);
    m_settings->sync();
}

} // namespace orvane
