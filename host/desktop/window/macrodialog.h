// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace orvane {

//! What was recorded, a command a line: to edit, to save, to load another one, to replay.
class MacroDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MacroDialog(QWidget *parent);

    //! Adds what was recorded since the last time; what the user wrote stays.
    void Refresh();
    //! Carries out line after line; empty ones and those that begin with # are passed over.
    void Replay();
    //! False, and one sentence in *error, when it cannot be done.
    bool Save(const QString &path, QString *error) const;
    bool Load(const QString &path, QString *error);

private:
    void askAndSave();
    void askAndLoad();

    QPlainTextEdit *m_text;
    int m_taken = 0; // how many of the recorded commands are in the text
};

} // namespace orvane
