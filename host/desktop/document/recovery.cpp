// SPDX-License-Identifier: MIT
#include "host/desktop/document/recovery.h"

#include "host/desktop/document/sessionfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

namespace orvane {

namespace {

QSet<QString> sessionsIn(const QString &folder)
{
    QSet<QString> sessions;
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        const QString session = name.section(QLatin1Char('.'), 0, 0);
        if (SessionFiles::IsSessionName(session))
            sessions.insert(session);
    }
    return sessions;
}

Recovery recoveryOf(const SessionFiles &files)
{
    Recovery recovery;
    recovery.session = files.Session();
    recovery.scenePath = files.ScenePath();
    recovery.time = QFileInfo(files.ScenePath()).lastModified();
    QFile about(files.AboutPath());
    if (!about.open(QIODevice::ReadOnly))
        return recovery;
    const QJsonObject object = QJsonDocument::fromJson(about.readAll()).object();
    recovery.path = object[QStringLiteral("path")].toString();
    recovery.title = object[QStringLiteral("title")].toString();
    const QString time = object[QStringLiteral("time")].toString();
    if (QDateTime::fromString(time, Qt::ISODate).isValid())
        recovery.time = QDateTime::fromString(time, Qt::ISODate).toLocalTime();
    return recovery;
}

} // namespace

QString recoveryFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
           + QStringLiteral("/recovery");
}

QVector<Recovery> findRecoveries(const QString &folder)
{
    QVector<Recovery> found;
    for (const QString &session : sessionsIn(folder)) {
        SessionFiles files(folder, session);
        if (!files.Lock())
            continue;
        if (QFileInfo(files.ScenePath()).isFile())
            found.append(recoveryOf(files));
        else
            files.Remove();
    }
    std::sort(found.begin(), found.end(), [](const Recovery &a, const Recovery &b) {
        return a.time != b.time ? a.time > b.time : a.session < b.session;
    });
    return found;
}

bool discard(const Recovery &recovery)
{
    SessionFiles files(QFileInfo(recovery.scenePath).path(), recovery.session);
    if (!files.Lock())
        return false;
    files.Remove();
    return true;
}

} // namespace orvane
