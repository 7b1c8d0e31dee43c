// SPDX-License-Identifier: MIT
#include "host/desktop/document/sessionfiles.h"

#include <QDir>
#include <QFile>
#include <QUuid>

namespace orvane {

QString SessionFiles::NewSessionName()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool SessionFiles::IsSessionName(const QString &text)
{
    return !QUuid::fromString(text).isNull();
}

SessionFiles::SessionFiles(const QString &folder, const QString &session)
    : m_folder(folder), m_session(session), m_lock(pathWith(QStringLiteral(".lock")))
{
    // A lock counts while its process lives, whatever the clock says about its age.
    m_lock.setStaleLockTime(0);
}

bool SessionFiles::Lock()
{
    return m_lock.isLocked() || m_lock.tryLock(0);
}

void SessionFiles::Remove()
{
    // The copy goes first: what is said about it must never be about another one.
    QFile::remove(ScenePath());
    QDir folder(m_folder);
    const QStringList names = folder.entryList(
        {m_session + QStringLiteral(".orvane*"), m_session + QStringLiteral(".json*")},
        QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        folder.remove(name);
}

QString SessionFiles::pathWith(const QString &ending) const
{
    return QDir(m_folder).filePath(m_session + ending);
}

} // namespace orvane
