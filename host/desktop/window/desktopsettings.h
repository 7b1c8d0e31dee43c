// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/toolcontext.h"
#include "host/desktop/view/navigation.h"
#include "host/desktop/viewport/viewoptions.h"
#include "host/desktop/window/theme.h"

#include <QString>

class QSettings;

namespace orvane {

//! What the user set for the window and keeps from one session to the next.
struct DesktopSettings
{
    static const int LeastAutosave; // seconds
    static const int MostAutosave;

    NavigationPreset navigation = NavigationPreset::AltDrag;
    Theme theme = Theme::System;
    QString language; // empty: the system's
    ViewOptions view;
    ToolSettings tools;
    int autosaveSeconds = 20;

    //! Takes over what the settings have and makes sense; the rest stays as it is.
    void Load(const QSettings &settings);
    void Save(QSettings &settings) const;
};

} // namespace orvane
