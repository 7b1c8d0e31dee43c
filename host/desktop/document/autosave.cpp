// SPDX-License-Identifier: MIT
#include "host/desktop/document/autosave.h"

#include "host/desktop/document/document.h"
#include "host/files/safefile.h"
#include "host/files/scenefile.h"

#include <orvane/kernel/kernel.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

namespace orvane {

namespace {

const int RetryTime = 100; // milliseconds, until a running operation is asked about again

QByteArray aboutText(const Document &document)
{
    const QJsonObject object{
        {QStringLiteral("path"), document.Path()},
        {QStringLiteral("title"), document.Title()},
        {QStringLiteral("time"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
    };
    return QJsonDocument(object).toJson();
}

} // namespace

const int Autosave::Interval = 20000;

Autosave::Autosave(Document *document, const QString &folder, QObject *parent)
    : QObject(parent),
      m_document(document),
      m_folder(folder),
      m_files(folder, SessionFiles::NewSessionName()),
      m_interval(Interval)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::onTimeout);
    connect(document, &Document::saved, this, &Autosave::removeCopy);
    connect(document, &Document::pathChanged, this, &Autosave::removeCopy);
    m_timer.start(m_interval);
}

Autosave::~Autosave()
{
    removeCopy();
}

void Autosave::SetInterval(int milliseconds)
{
    m_interval = milliseconds;
    m_timer.start(m_interval);
}

void Autosave::onTimeout()
{
    const bool mustWait = Kernel()->IsOperationRunning();
    if (!mustWait)
        SaveNow();
    m_timer.start(mustWait ? qMin(RetryTime, m_interval) : m_interval);
}

bool Autosave::SaveNow()
{
    if (Kernel()->IsOperationRunning())
        return false;
    const int revision = m_document->Revision();
    if (!m_document->IsChanged() || revision == m_savedRevision)
        return true;
    QString error;
    if (write(&error)) {
        m_savedRevision = revision;
        m_hasFailed = false;
        emit saved();
        return true;
    }
    if (!m_hasFailed)
        emit failed(error);
    m_hasFailed = true;
    return false;
}

bool Autosave::write(QString *error)
{
    if (!QDir().mkpath(m_folder) || !m_files.Lock()) {
        *error = aboutFile(m_folder, tr("unsaved work cannot be kept there; expected a folder that "
                                        "can be written."));
        return false;
    }
    return writeScene(m_files.ScenePath(), error)
           && writeWhole(m_files.AboutPath(), aboutText(*m_document), error);
}

FileReport Autosave::Recover(const Recovery &recovery)
{
    SessionFiles left(QFileInfo(recovery.scenePath).path(), recovery.session);
    if (!left.Lock()) {
        FileReport report;
        report.problems.append(
            aboutFile(recovery.scenePath, tr("another window has taken this work up.")));
        return report;
    }
    const FileReport report = m_document->OpenRecovered(recovery);
    const bool isWhole = report.done && report.problems.isEmpty();
    if (isWhole && SaveNow())
        left.Remove();
    return report;
}

void Autosave::removeCopy()
{
    m_files.Remove();
    m_savedRevision = -1;
}

} // namespace orvane
