// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/undoqueue.h>

namespace orvane {

//! Where in the kernel's undo queue the scene is as it was saved. The queue tells nobody what
//! happens to it, so it is looked at; in doubt the saved state counts as lost.
class SavedPosition
{
public:
    //! The scene is saved as it stands.
    void Set();
    //! It never was, or can no longer be reached.
    void Forget() { m_saved = -1; }
    //! True when steps were done, undone or redone since the last look.
    bool Look();
    //! At the last look, was the scene as it was saved?
    bool IsHere() const { return m_saved == m_position; }

private:
    int savedAmong(const QVector<UndoStep> &steps, int newOperations) const;

    int m_saved = -1; // steps done when it was saved; -1: lost
    // What was seen last:
    QVector<UndoStep> m_steps;
    int m_position = 0;
    int m_operations = 0;
};

} // namespace orvane
