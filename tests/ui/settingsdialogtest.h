// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scenecleaner.h"
#include "ui/manualretopodialog.h"

class QCheckBox;
class QLineEdit;

//! Fixture of tests that use the settings dialog as a user does.
class SettingsDialogTest : public SceneCleaner
{
protected:
    SettingsDialogTest();

    //! A child of that object name; the test stops when there is none.
    QWidget *widget(const char *name) const;
    QLineEdit *edit(const char *name) const;
    QCheckBox *box(const char *name) const;

    //! Shows the dialog and waits until it has the keyboard.
    void show();
    //! Replaces what the field holds, key by key.
    void type(const char *name, const QString &text);
    void clear(const char *name);
    void click(const char *name);

    ManualRetopoDialog dialog;
};
