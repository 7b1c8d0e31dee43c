// SPDX-License-Identifier: MIT
#include <orvane/kernel/undoqueue.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/operation.h>
#include <orvane/base/stream.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QScopedPointer>

namespace orvane {

const int UndoQueue::MaximumSteps = 100;
const qint64 UndoQueue::MaximumBytes = qint64(1) << 30;

namespace {

QByteArray bytesOf(Operation *operation)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    Stream stream(&buffer, Stream::Writing);
    operation->Serialize(stream);
    return bytes;
}

} // namespace

QString UndoQueue::UndoText() const
{
    return CanUndo() ? textOf(m_steps[m_position - 1]) : QString();
}

QString UndoQueue::RedoText() const
{
    return CanRedo() ? textOf(m_steps[m_position]) : QString();
}

QString UndoQueue::textOf(const UndoStep &step)
{
    if (!step.first().title.isEmpty())
        return QCoreApplication::translate("UndoStep", step.first().title.toUtf8().constData());
    const QString className = step.first().className;
    const ClassDesc *desc = ClassDesc::ByName(className);
    const QByteArray text = (desc ? desc->DisplayName() : className).toUtf8();
    return QCoreApplication::translate(className.toUtf8().constData(), text.constData());
}

void UndoQueue::Push(Operation *operation, bool merge)
{
    ++m_revision;
    m_steps.resize(m_position);
    const bool isNewStep = !merge || m_steps.isEmpty();
    // The saved scene lay in what is cut off, or within the step that grows now.
    if (m_saved > m_position || (m_saved == m_position && !isNewStep))
        m_saved = -1;
    if (isNewStep)
        m_steps.append(UndoStep());
    m_steps.last().append({operation->RuntimeClass()->Name(), bytesOf(operation)});
    m_position = m_steps.size();
    enforceLimits();
}

void UndoQueue::SetTitle(const QString &title)
{
    if (CanUndo() && m_steps[m_position - 1].first().title.isEmpty())
        m_steps[m_position - 1].first().title = title;
}

void UndoQueue::enforceLimits()
{
    qint64 bytes = 0;
    int kept = 0;
    for (int i = m_steps.size() - 1; i >= 0; --i) {
        for (const OperationRecord &record : qAsConst(m_steps[i]))
            bytes += record.bytes.size();
        if (kept > 0 && (kept == MaximumSteps || bytes > m_maximumBytes))
            break;
        ++kept;
    }
    const int dropped = m_steps.size() - kept;
    m_steps.remove(0, dropped);
    m_position -= dropped;
    m_saved = qMax(-1, m_saved - dropped);
}

bool UndoQueue::run(OperationRecord &record)
{
    const ClassDesc *desc = ClassDesc::ByName(record.className);
    QScopedPointer<Node> node(desc ? desc->Create() : nullptr);
    auto *operation = dynamic_cast<Operation *>(node.data());
    if (!operation) {
        log(QStringLiteral("No operation class named %1: the step cannot be run.")
                .arg(record.className));
        return false;
    }
    QBuffer buffer(&record.bytes);
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Reading);
    operation->Serialize(stream);
    if (!stream.IsOk()) {
        log(QStringLiteral("A step of class %1 cannot be read.").arg(record.className));
        return false;
    }
    if (!operation->ExecuteAndInvert())
        return false;
    buffer.close();
    record.bytes = bytesOf(operation);
    return true;
}

bool UndoQueue::Undo()
{
    if (!CanUndo())
        return false;
    UndoStep &step = m_steps[m_position - 1];
    for (int i = step.size() - 1; i >= 0; --i) {
        if (run(step[i]))
            continue;
        while (++i < step.size()) // put back what is undone of it: a step is whole or not at all
            run(step[i]);
        return false;
    }
    --m_position;
    ++m_revision;
    return true;
}

bool UndoQueue::Redo()
{
    if (!CanRedo())
        return false;
    UndoStep &step = m_steps[m_position];
    for (int i = 0; i < step.size(); ++i) {
        if (run(step[i]))
            continue;
        while (--i >= 0)
            run(step[i]);
        return false;
    }
    ++m_position;
    ++m_revision;
    return true;
}

void UndoQueue::SetSaved(bool saved)
{
    m_saved = saved ? m_position : -1;
}

void UndoQueue::Clear()
{
    m_steps.clear();
    m_position = 0;
    m_saved = -1;
    ++m_revision;
}

void UndoQueue::Restore(const QVector<UndoStep> &steps, int position)
{
    Clear();
    for (int i = 0; i < steps.size(); ++i) {
        if (steps[i].isEmpty())
            continue;
        m_steps.append(steps[i]);
        m_position += i < position;
    }
}

} // namespace orvane
