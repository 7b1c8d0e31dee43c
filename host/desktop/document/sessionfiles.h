// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

namespace orvane {

//! The files of one session in the folder where sessions keep their work: its lock, the copy of
//! its scene, and what there is to say about it. All begin with the session's name and a dot.
class SessionFiles
{
public:
    static QString NewSessionName();
    //! Other files may lie in the folder.
    static bool IsSessionName(const QString &text);

    SessionFiles(const QString &folder, const QString &session);

    const QString &Session() const { return m_session; }
    QString ScenePath() const { return pathWith(QStringLiteral(".orvane")); }
    QString AboutPath() const { return pathWith(QStringLiteral(".json")); }

    //! Takes the session until this object goes. False when its process is alive, another process
    //! has taken it, or the folder cannot be written.
    bool Lock();
    //! Removes all files of the session but its lock, also what a kill left half written.
    void Remove();

private:
    QString pathWith(const QString &ending) const;

    QString m_folder;
    QString m_session;
    QLockFile m_lock;
};

} // namespace orvane
