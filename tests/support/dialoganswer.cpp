// SPDX-License-Identifier: MIT
#include "tests/support/dialoganswer.h"

#include <QAbstractButton>
#include <QApplication>

DialogAnswer::DialogAnswer(const QString &button) : m_button(button)
{
    QObject::connect(&m_timer, &QTimer::timeout, [this]() { answer(); });
    m_timer.start(0);
}

void DialogAnswer::answer()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return;
    auto *button = dialog->findChild<QAbstractButton *>(m_button);
    if (!button) {
        dialog->close();
        return;
    }
    ++m_count;
    button->click();
}
