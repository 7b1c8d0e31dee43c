// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/filereport.h"
#include "host/desktop/document/recovery.h"
#include "host/desktop/document/sessionfiles.h"

#include <QObject>
#include <QScopedPointer>
#include <QThread>
#include <QTimer>

namespace orvane {

class Document;

//! Keeps a copy of unsaved work in a file that outlives a crash: written every 20 seconds when the
//! scene has changed, by a thread of its own, never begun while an operation runs, removed once the
//! work is saved or given up, and by the destructor. Work that was undone stays in it. Its time is
//! that of timers; no clock that people set matters.
class Autosave : public QObject
{
    Q_OBJECT

public:
    static const int Interval; // milliseconds

    explicit Autosave(Document *document, const QString &folder = recoveryFolder(),
                      QObject *parent = nullptr);
    ~Autosave() override;

    //! Milliseconds between two copies.
    void SetInterval(int milliseconds);
    //! The copy, whether there is one at the moment or not.
    QString ScenePath() const { return m_files.ScenePath(); }
    //! Writes a copy now when there is unsaved work that the last one does not have. False when it
    //! could not be written, or an operation runs.
    bool SaveNow();
    //! Opens the work as that of this session. What was left is removed once this session has its
    //! own copy.
    FileReport Recover(const Recovery &recovery);

signals:
    void saved();                         //!< a copy was written
    void failed(const QString &sentence); //!< no copy could be written; said once in a row

private:
    void onTimeout();
    void onFinished();
    bool hasNews() const;
    void begin();
    void end();
    void tell();
    void removeCopy();

    Document *m_document; // not owned; outlives this
    QString m_folder;
    SessionFiles m_files; // locked: this session is alive
    QTimer m_timer;
    int m_interval;                   // milliseconds
    int m_savedRevision = -1;         // of the copy; -1: there is none, or not all of it
    QScopedPointer<QThread> m_writer; // of the copy that is being written
    int m_writtenRevision = -1;       // of that copy
    QString m_error;                  // the writer's, until it has finished; empty: none
    bool m_hasFailed = false;         // the last time
};

} // namespace orvane
