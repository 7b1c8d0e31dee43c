// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>

class QDialog;

//! Stands in for the person at the screen: presses a button of each modal dialog that opens.
class DialogAnswers : public QObject
{
public:
    //! Watches every dialog of the application from now on.
    DialogAnswers();

    //! For a dialog of this object name, press the button of that object name. A dialog that
    //! nobody gave an answer for is closed and named on the error stream.
    void setAnswer(const QString &dialog, const QString &button);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QDialog *dialog) const;

    QHash<QString, QString> m_buttons; // by dialog
};
