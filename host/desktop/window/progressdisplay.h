// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace orvane {

//! The progress of an operation, in the status bar. It is seen to move although the operation does
//! not come back to the event loop: windows are painted meanwhile, and nothing the user does with
//! mouse or keys is delivered before the operation is through. What is through at once is not
//! shown at all, and painting takes no more than a fifth of the time.
class ProgressDisplay : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressDisplay(QWidget *parent);

    bool IsRunning() const { return m_running; }
    QString Text() const;
    //! From 0 to 1.
    double Part() const { return m_part; }

    //! A phase takes the place of the one before.
    void Start(const QString &text, qint64 maximum);
    //! Beyond the ends, and while nothing runs, values are held within or ignored.
    void Set(qint64 value);
    void End();

private:
    bool isTimeToShow() const;
    void showNow();

    QLabel *m_label;
    QProgressBar *m_bar;
    QElapsedTimer m_sinceBegin; // of the first of phases that follow each other
    QElapsedTimer m_sinceEnd;
    QElapsedTimer m_sinceShown;
    qint64 m_timeToShow = 0; // the last time, milliseconds
    qint64 m_maximum = 0;
    double m_part = 0.0;
    bool m_running = false;
    bool m_showing = false;
};

} // namespace orvane
