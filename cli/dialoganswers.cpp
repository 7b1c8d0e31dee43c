// SPDX-License-Identifier: MIT
#include "cli/dialoganswers.h"

#include "cli/terminal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

DialogAnswers::DialogAnswers()
{
    qApp->installEventFilter(this);
}

void DialogAnswers::setAnswer(const QString &dialog, const QString &button)
{
    m_buttons.insert(dialog, button);
}

bool DialogAnswers::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    // Its own event loop must run before it can be ended.
    if (dialog && dialog->isModal())
        QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
    return false;
}

void DialogAnswers::answer(QDialog *dialog) const
{
    const QString name = dialog->objectName();
    auto *button = m_buttons.contains(name)
                       ? dialog->findChild<QAbstractButton *>(m_buttons.value(name))
                       : nullptr;
    if (button) {
        button->click();
        return;
    }
    printLine(stderr, QStringLiteral("The dialog \"%1\" has no answer here and was closed.")
                          .arg(name.isEmpty() ? QString::fromUtf8(dialog->metaObject()->className())
                                              : name));
    dialog->reject();
}
