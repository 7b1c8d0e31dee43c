// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/commandgroup.h"

namespace orvane {

//! The Help menu.
class HelpCommands : public CommandGroup
{
    Q_OBJECT

public:
    explicit HelpCommands(const Workbench &bench);

    void ShowShortcuts();
    void ShowAbout();
};

} // namespace orvane
