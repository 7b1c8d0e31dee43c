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
    const bool mustWait = Kernel()->IsOperationRunning() || m_writer;
    if (!mustWait && hasNews())
        begin();
    m_timer.start(mustWait ? qMin(RetryTime, m_interval) : m_interval);
}

bool Autosave::SaveNow()
{
    if (Kernel()->IsOperationRunning())
        return false;
    end();
    if (!hasNews())
        return true;
    begin();
    end();
    return !m_hasFailed;
}

bool Autosave::hasNews() const
{
    return m_document->IsChanged() && m_document->Revision() != m_savedRevision;
}

// Packing and writing a large scene takes long enough to be felt, and needs nothing of the scene.
void Autosave::begin()
{
    SceneSnapshot snapshot;
    if (!QDir().mkpath(m_folder) || !m_files.Lock() || !takeSnapshot(&snapshot)) {
        m_error =
            aboutFile(m_folder, tr("unsaved work cannot be kept there; expected a folder that "
                                   "can be written."));
        tell();
        return;
    }
    m_error.clear();
    m_writtenRevision = m_document->Revision();
    m_writer.reset(
        QThread::create([this, snapshot, scenePath = m_files.ScenePath(),
                         aboutPath = m_files.AboutPath(), about = aboutText(*m_document)] {
            if (writeSnapshot(snapshot, scenePath, &m_error))
                writeWhole(aboutPath, about, &m_error);
        }));
    connect(m_writer.data(), &QThread::finished, this, &Autosave::onFinished);
    m_writer->start();
}

void Autosave::onFinished()
{
    if (m_writer && m_writer->isFinished()) // rather than one that SaveNow has waited for
        end();
}

void Autosave::end()
{
    if (!m_writer)
        return;
    m_writer->wait();
    m_writer.reset();
    tell();
}

void Autosave::tell()
{
    const bool isFirstFailure = !m_error.isEmpty() && !m_hasFailed;
    m_hasFailed = !m_error.isEmpty();
    if (isFirstFailure)
        emit failed(m_error);
    if (m_hasFailed)
        return;
    m_savedRevision = m_writtenRevision;
    emit saved();
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
    if (m_writer)
        m_writer->wait(); // or the copy would come back
    m_writer.reset();
    m_files.Remove();
    m_savedRevision = -1;
}

} // namespace orvane
