// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/interface.h>

#include <QElapsedTimer>

//! The host's interface on a terminal: progress and messages go to the error stream, progress
//! only when a person can see it there.
class BatchInterface : public orvane::Interface
{
public:
    BatchInterface();

    void ProgressStart(const QString &text, qint64 maximum, double step, int flags) override;
    void ProgressSet(qint64 value) override;
    void ProgressEnd() override;
    void HUDMessageShow(const QString &text, int type, int milliseconds) override;
    //! Always: the report says why nothing was made, at more length than a message would.
    bool IsHUDMessageUp() const override { return true; }

private:
    void showProgress(qint64 value);

    bool m_isTerminal;
    QString m_text;
    qint64 m_maximum = 0;
    QElapsedTimer m_sinceShown;
};
