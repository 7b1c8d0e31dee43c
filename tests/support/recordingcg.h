// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

//! What a test program has in place of Cg and of CgProgram: functions of the same names that note
//! their calls among those of RecordingGl. Programs are known by the names of their entries.
//! Setting the colour of the bound program sets the colour that is drawn with.
class RecordingCg
{
public:
    static RecordingCg &instance();

    QStringList missing;  // entries that no file has
    int livePrograms = 0; // made and not destroyed
    int boundProfiles = 0;
    int enabledProfiles = 0;
};
