// SPDX-License-Identifier: MIT
#include "tests/support/recordinginterface.h"

#include <orvane/kernel/kernel.h>

RecordingInterface::RecordingInterface()
{
    orvane::Kernel()->SetInterface(this);
}

RecordingInterface::~RecordingInterface()
{
    orvane::Kernel()->SetInterface(nullptr);
}

void RecordingInterface::ProgressStart(const QString &text, qint64 maximum, double step, int flags)
{
    if (!phases.isEmpty() && !phases.last().ended)
        ++strayCalls;
    phases.append({text, maximum, step, flags, {}, false});
}

void RecordingInterface::ProgressSet(qint64 value)
{
    if (phases.isEmpty() || phases.last().ended)
        ++strayCalls;
    else
        phases.last().values.append(value);
}

void RecordingInterface::ProgressEnd()
{
    if (phases.isEmpty() || phases.last().ended)
        ++strayCalls;
    else
        phases.last().ended = true;
}

void RecordingInterface::HUDMessageShow(const QString &text, int type, int milliseconds)
{
    messages.append({text, type, milliseconds});
}

QStringList RecordingInterface::phaseTexts() const
{
    QStringList texts;
    for (const Phase &phase : phases)
        texts.append(phase.text);
    return texts;
}
