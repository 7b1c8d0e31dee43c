// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;

namespace orvane {

//! Sets the kernel's command attribute, so that whoever knows the command carries it out.
void runCommand(const QString &command);

//! The command line at the bottom of the window. Enter carries out what was typed; up and down go
//! through what was typed before.
class CommandBar : public QWidget
{
    Q_OBJECT

public:
    explicit CommandBar(QWidget *parent = nullptr);

    QLineEdit *Edit() const { return m_edit; }

signals:
    void macroAsked();
    //! The user is done here: the keys go back to the view.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void run();
    void recall(int step);

    QLineEdit *m_edit;
    QStringList m_history;
    int m_place = 0; // in the history; its size: the line being typed
    QString m_typed; // the line being typed, while the history is looked through
};

} // namespace orvane
