// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QVector>

namespace orvane {

//! What a session that ended without saying so left behind.
struct Recovery
{
    QString session;   // its name
    QString scenePath; // the file with its work
    QString path;      // the file the work belongs to; empty for none
    QString title;
    QDateTime time; // by the clock of then; for the eye only
};

//! Where sessions keep their work: a folder of the user's own.
QString recoveryFolder();

//! What is there of sessions that are no longer alive, the latest first. What they left besides
//! work is removed.
QVector<Recovery> findRecoveries(const QString &folder = recoveryFolder());

//! Removes what the session left. False when that session is alive or another one took it up.
bool discard(const Recovery &recovery);

} // namespace orvane
