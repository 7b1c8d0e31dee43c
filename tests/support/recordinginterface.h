// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/interface.h>

#include <QStringList>

//! Notes what it is asked to show, and is the kernel's interface for its life.
class RecordingInterface : public orvane::Interface
{
public:
    //! One progress phase, from its start to the next.
    struct Phase
    {
        QString text;
        qint64 maximum = 0;
        double step = 0.0;
        int flags = 0;
        QVector<qint64> values; // in the order they were set
        bool ended = false;
    };

    struct Message
    {
        QString text;
        int type = 0;
        int milliseconds = 0;
    };

    RecordingInterface();
    ~RecordingInterface() override;

    void ProgressStart(const QString &text, qint64 maximum, double step, int flags) override;
    void ProgressSet(qint64 value) override;
    void ProgressEnd() override;
    void HUDMessageShow(const QString &text, int type, int milliseconds) override;
    void ReportShow(const QString &text) override { reports.append(text); }
    void RefreshUI() override { ++refreshes; }

    QStringList phaseTexts() const;

    QVector<Phase> phases;
    QVector<Message> messages;
    QStringList reports;
    int refreshes = 0;
    int strayCalls = 0; // progress set or ended while no phase was running
};
