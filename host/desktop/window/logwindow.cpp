// SPDX-License-Identifier: MIT
#include "host/desktop/window/logwindow.h"

#include <orvane/base/log.h>

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QSize UsualSize(640, 320);
const int MostLines = 5000;

} // namespace

LogWindow::LogWindow(QWidget *parent)
    : QWidget(parent, Qt::Window), m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("logWindow"));
    setWindowTitle(tr("Log"));
    resize(UsualSize);
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(MostLines);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setAccessibleName(tr("Log"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    const QStringList texts = recentLog();
    for (const QString &text : texts)
        m_text->appendPlainText(text);
    // Not at once: a line may be logged by another thread, or while this text is being drawn.
    setLogSink([this](const QString &text) {
        QMetaObject::invokeMethod(
            m_text, [this, text] { m_text->appendPlainText(text); }, Qt::QueuedConnection);
    });
}

LogWindow::~LogWindow()
{
    setLogSink({});
}

} // namespace orvane
