// SPDX-License-Identifier: MIT
#include "host/desktop/window/macrodialog.h"

#include "host/desktop/window/commandbar.h"

#include <orvane/kernel/kernel.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QSize UsualSize(560, 360);

QPushButton *addButton(QDialogButtonBox *box, const char *name, const QString &text)
{
    QPushButton *button = box->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QString filter()
{
    return MacroDialog::tr("Commands (*.txt);;All files (*)");
}

} // namespace

MacroDialog::MacroDialog(QWidget *parent) : QDialog(parent), m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("macroDialog"));
    setWindowTitle(tr("Macro"));
    resize(UsualSize);
    m_text->setObjectName(QStringLiteral("macroText"));
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setTabChangesFocus(true);
    auto *label = new QLabel(tr("&Recorded commands, one a line:"), this);
    label->setBuddy(m_text);
    auto *box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *replay = addButton(box, "replayMacro", tr("Re&play"));
    connect(replay, &QPushButton::clicked, this, &MacroDialog::Replay);
    connect(addButton(box, "saveMacro", tr("&Save...")), &QPushButton::clicked, this,
            &MacroDialog::askAndSave);
    connect(addButton(box, "loadMacro", tr("&Open...")), &QPushButton::clicked, this,
            &MacroDialog::askAndLoad);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_text);
    layout->addWidget(box);
}

void MacroDialog::Refresh()
{
    const QStringList &recorded = Kernel()->RecordedCommands();
    for (; m_taken < recorded.size(); ++m_taken)
        m_text->appendPlainText(recorded.at(m_taken));
}

void MacroDialog::Replay()
{
    const QStringList lines = m_text->toPlainText().split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString command = line.trimmed();
        if (!command.isEmpty() && !command.startsWith(QLatin1Char('#')))
            runCommand(command);
    }
}

bool MacroDialog::Save(const QString &path, QString *error) const
{
    QSaveFile file(path);
    const QByteArray bytes = m_text->toPlainText().toUtf8() + '\n';
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    *error = tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), file.errorString());
    return false;
}

bool MacroDialog::Load(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error =
            tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(path), file.errorString());
        return false;
    }
    m_text->setPlainText(QString::fromUtf8(file.readAll()).trimmed());
    return true;
}

void MacroDialog::askAndSave()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Macro"), QDir::homePath(), filter());
    QString error;
    if (!path.isEmpty() && !Save(path, &error))
        QMessageBox::warning(this, windowTitle(), error);
}

void MacroDialog::askAndLoad()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Macro"), QDir::homePath(), filter());
    QString error;
    if (!path.isEmpty() && !Load(path, &error))
        QMessageBox::warning(this, windowTitle(), error);
}

} // namespace orvane
