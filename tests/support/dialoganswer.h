// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTimer>

//! Clicks the button of that object name in every modal dialog that opens during its life, so that
//! none holds a test up. A dialog without such a button is closed.
class DialogAnswer
{
public:
    explicit DialogAnswer(const QString &button);
    DialogAnswer(const DialogAnswer &) = delete;
    DialogAnswer &operator=(const DialogAnswer &) = delete;

    //! How many dialogs had the button.
    int count() const { return m_count; }

private:
    void answer();

    QTimer m_timer;
    QString m_button;
    int m_count = 0;
};
