// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/desktopsettings.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace orvane {

//! The languages that the folder has translations to, English first; codes such as "de".
QStringList translatedLanguages(const QString &folder);
//! How a preset is called, and its drags in one line.
QString navigationName(NavigationPreset preset);

//! What the user sets for good.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    PreferencesDialog(const DesktopSettings &settings, bool renderMeshFaults, QWidget *parent);

    //! The settings as they stand in the dialog.
    DesktopSettings Settings() const;
    bool RenderMeshFaults() const;

private:
    DesktopSettings m_settings; // what is not in the dialog comes from here
    QComboBox *m_navigation;
    QComboBox *m_theme;
    QComboBox *m_language;
    QComboBox *m_shading;
    QSpinBox *m_autosave;
    QCheckBox *m_faults;
    QCheckBox *m_grid;
    QCheckBox *m_hud;
};

} // namespace orvane
