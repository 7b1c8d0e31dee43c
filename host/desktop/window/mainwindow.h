// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/desktopinterface.h"
#include "host/desktop/window/desktopsettings.h"
#include "host/desktop/window/desktoptoolcontext.h"
#include "host/desktop/window/workbench.h"

#include <QMainWindow>
#include <QScopedPointer>

class QSettings;
class QStackedWidget;

namespace orvane {

class CommandBar;
class CurveCommandGroup;
class EditCommands;
class FileCommands;
class HudLine;
class LogWindow;
class MacroDialog;
class StartPage;
class StatisticsPanel;
class StrokeBar;
class ViewCommands;

//! The window of the desktop. While it lives it is the kernel's interface and has its view.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! store: where preferences are kept; plugins: for the about box, may be null. Both outlive it.
    MainWindow(QSettings *store, const PluginLoader *plugins);
    ~MainWindow() override;

    FileCommands &Files() { return *m_files; }
    orvane::Document &Document() { return *m_bench.document; }
    ViewportWidget &Viewport() { return *m_bench.viewport; }
    ToolBox &Tools() { return *m_tools; }
    //! Brings lists, menus and titles up to date with the scene at once.
    void Refresh();
    //! A picture of the window as it is, once the view has been drawn.
    QImage Picture();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeMenus();
    void makeCentre();
    void makePanels();
    void makeToolBars();
    void makeCommands();
    void connectParts();
    void addCommandLine();
    void applySettings();
    void saveSettings();
    void showPreferences();
    void showMacro();
    void showOpened();
    void showTitle();
    void showTool();

    QSettings *m_store;
    DesktopSettings m_settings;
    Workbench m_bench;
    QStackedWidget *m_stack = nullptr;
    StartPage *m_startPage = nullptr;
    CommandBar *m_commandBar = nullptr;
    StatisticsPanel *m_statistics = nullptr;
    StrokeBar *m_strokeBar = nullptr;
    MacroDialog *m_macro = nullptr;
    LogWindow *m_log = nullptr;
    HudLine *m_hudLine = nullptr;
    FileCommands *m_files = nullptr;
    EditCommands *m_edit = nullptr;
    CurveCommandGroup *m_curves = nullptr;
    ViewCommands *m_view = nullptr;
    QScopedPointer<DesktopInterface> m_interface;
    QScopedPointer<DesktopToolContext> m_context;
    QScopedPointer<ToolBox> m_tools;
};

} // namespace orvane
