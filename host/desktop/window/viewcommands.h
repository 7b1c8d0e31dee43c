// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/viewoptions.h"
#include "host/desktop/window/commandgroup.h"

class QActionGroup;

namespace orvane {

//! The View menu: where one looks from, and how things are shown.
class ViewCommands : public CommandGroup
{
    Q_OBJECT

public:
    explicit ViewCommands(const Workbench &bench);

    //! Brings the marks and the view up to date with the settings.
    void Refresh();
    //! Panels and windows of the main window, after the rest of the menu.
    void AddPanel(QAction *action);

signals:
    void settingsChanged();

private:
    void addLooks();
    void addShadings();
    void addSwitches();
    void addOption(const ActionWords &words, int position, bool ViewOptions::*option);
    void apply();

    QActionGroup *m_shadings;
    QVector<QPair<QAction *, bool ViewOptions::*>> m_options;
    int m_panels = 0;
};

} // namespace orvane
