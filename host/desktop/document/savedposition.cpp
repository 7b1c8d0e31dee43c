// SPDX-License-Identifier: MIT
#include "host/desktop/document/savedposition.h"

#include <orvane/kernel/kernel.h>

namespace orvane {

namespace {

const char *startOf(const UndoStep &step)
{
    return step.first().bytes.constData();
}

} // namespace

void SavedPosition::Set()
{
    Look();
    m_saved = m_position;
}

bool SavedPosition::Look()
{
    const UndoQueue &queue = Kernel()->Undos();
    const int operations = Kernel()->OperationCount();
    const int newOperations = operations - m_operations;
    m_operations = operations;
    // A share of the list is kept here, so the queue makes another one before it changes anything.
    if (queue.Steps().constData() == m_steps.constData() && queue.Position() == m_position)
        return false;
    m_saved = savedAmong(queue.Steps(), newOperations);
    m_steps = queue.Steps();
    m_position = queue.Position();
    return true;
}

// A step that was not touched since is the very same list.
int SavedPosition::savedAmong(const QVector<UndoStep> &steps, int newOperations) const
{
    if (m_saved < 0 || newOperations == 0)
        return m_saved;
    if (m_saved > 0) {
        const OperationRecord *last = m_steps[m_saved - 1].constData();
        for (int i = 0; i < steps.size(); ++i) {
            if (steps[i].constData() == last)
                return i + 1;
        }
        return -1;
    }
    // The beginning of the queue is lost only when steps fell off there. Others may have been
    // merged into the first one meanwhile.
    const bool keptFirst =
        m_position > 0 && !steps.isEmpty() && startOf(steps.first()) == startOf(m_steps.first());
    const bool hadRoom = m_position == 0 && newOperations <= UndoQueue::MaximumSteps;
    return keptFirst || hadRoom ? 0 : -1;
}

} // namespace orvane
