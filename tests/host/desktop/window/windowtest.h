// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/mainwindow.h"

#include "tests/support/scenecleaner.h"

#include <orvane/kernel/pluginloader.h>

#include <QFileDialog>
#include <QPointer>
#include <QScopedPointer>
#include <QSettings>
#include <QTemporaryDir>

#include <functional>

class QAction;

//! A main window with settings of its own, in the folder of pictures and help pages.
class WindowTest : public SceneCleaner
{
protected:
    WindowTest();
    ~WindowTest() override;

    //! Closes the window that is open, if any, and opens a new one on the same settings.
    void openWindow(const orvane::PluginLoader *plugins = nullptr);
    //! A new window with the plug-ins of the folder. Once in a process: that often a plug-in's
    //! initialiser runs.
    void openWindowWithPlugins(const QString &folder);
    //! Triggers the action, looks at the dialog that it opens and closes that by Esc.
    void inDialog(const char *name, const std::function<void(QWidget &)> &look);
    //! A file of the test's own folder.
    QString file(const char *name) const;
    //! A cube as a mesh file there.
    QString cubeFile() const;
    QAction *action(const char *name) const;
    //! As the user does it: presses the keys where the focus is.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void settle() const;

    QTemporaryDir m_folder;
    QSettings m_settings;
    orvane::PluginLoader m_plugins; // outlives the window
    QScopedPointer<orvane::MainWindow> m_window;

private:
    QString m_before; // the working directory
};

//! Types a path into every file dialog that opens during its life, and confirms it by Enter.
class FileDialogAnswer : public QObject
{
    Q_OBJECT

public:
    explicit FileDialogAnswer(const QString &path);

    //! How many dialogs there were.
    int count() const { return m_count; }

private:
    void answer();

    QString m_path;
    QPointer<QFileDialog> m_last;
    int m_count = 0;
};
