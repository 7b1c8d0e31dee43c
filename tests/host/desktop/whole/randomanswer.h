// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <random>

class QDialog;

//! Answers whatever dialog or context menu holds the program up, at random. File dialogs get one
//! of the given paths, or none. The same faults of a new mesh get the same answer every time: a
//! creation that is done again asks again, and makes what it made only when nobody changes his
//! mind.
class RandomAnswer : public QObject
{
    Q_OBJECT

public:
    RandomAnswer(unsigned seed, const QStringList &paths);

    //! How many modal dialogs there were.
    int count() const { return m_count; }

private:
    void answer();
    void answerMenu(QWidget *menu);
    void answerDialog(QWidget *dialog);
    void answerFaults(QWidget *dialog);
    void giveFile(QDialog *dialog);
    int upTo(int count) { return int(m_random() % unsigned(count)); }

    unsigned m_seed;
    std::mt19937 m_random;
    QStringList m_paths;
    QPointer<QWidget> m_last;
    int m_tries = 0; // with the last dialog or menu
    int m_count = 0;
};
