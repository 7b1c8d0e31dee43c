// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/commandgroup.h"

namespace orvane {

//! The Edit menu: undo and redo with the name of the step, the selection, deleting, preferences.
class EditCommands : public CommandGroup
{
    Q_OBJECT

public:
    explicit EditCommands(const Workbench &bench);

    //! Brings the names of undo and redo up to date.
    void Refresh();
    void Undo();
    void Redo();

signals:
    void preferencesAsked();

private:
    void deleteSelected();

    QAction *m_undo;
    QAction *m_redo;
};

} // namespace orvane
