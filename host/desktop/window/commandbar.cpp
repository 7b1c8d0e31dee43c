// SPDX-License-Identifier: MIT
#include "host/desktop/window/commandbar.h"

#include <orvane/kernel/kernel.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>

namespace orvane {

void runCommand(const QString &command)
{
    Kernel()->CommandAttribute().SetValue(command);
}

CommandBar::CommandBar(QWidget *parent) : QWidget(parent), m_edit(new QLineEdit(this))
{
    setObjectName(QStringLiteral("commandBar"));
    m_edit->setObjectName(QStringLiteral("commandLine"));
    m_edit->setPlaceholderText(tr("Type a recorded command and press Enter"));
    m_edit->setAccessibleName(tr("Command line"));
    m_edit->installEventFilter(this);
    auto *label = new QLabel(tr("C&ommand:"), this);
    label->setBuddy(m_edit);
    auto *macro = new QToolButton(this);
    macro->setObjectName(QStringLiteral("macroButton"));
    macro->setText(tr("Macro..."));
    macro->setToolTip(tr("What was recorded, to save, edit and replay"));
    macro->setFocusPolicy(Qt::TabFocus);
    connect(macro, &QToolButton::clicked, this, &CommandBar::macroAsked);
    connect(m_edit, &QLineEdit::returnPressed, this, &CommandBar::run);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 2, 6, 2);
    layout->addWidget(label);
    layout->addWidget(m_edit, 1);
    layout->addWidget(macro);
}

bool CommandBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_edit || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        recall(-1);
        return true;
    case Qt::Key_Down:
        recall(1);
        return true;
    case Qt::Key_Escape:
        emit left();
        return true;
    default:
        return false;
    }
}

void CommandBar::run()
{
    const QString command = m_edit->text().trimmed();
    m_edit->clear();
    if (command.isEmpty())
        return;
    m_history.removeAll(command);
    m_history.append(command);
    m_place = m_history.size();
    runCommand(command);
}

void CommandBar::recall(int step)
{
    if (m_place == m_history.size())
        m_typed = m_edit->text();
    m_place = std::clamp(m_place + step, 0, int(m_history.size()));
    m_edit->setText(m_place == m_history.size() ? m_typed : m_history.at(m_place));
}

} // namespace orvane
