// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;
class QSettings;

namespace orvane {

class Autosave;
class Document;
struct DesktopSettings;
class Menus;
class PluginLoader;
class SceneList;
class ToolBox;
class ToolContext;
class ViewportWidget;

//! What the commands of the window work with; all of it outlives them.
struct Workbench
{
    QMainWindow *window = nullptr;
    Menus *menus = nullptr;
    Document *document = nullptr;
    Autosave *autosave = nullptr;
    ViewportWidget *viewport = nullptr;
    ToolBox *tools = nullptr;
    ToolContext *context = nullptr;
    SceneList *sceneList = nullptr;
    DesktopSettings *settings = nullptr;
    QSettings *store = nullptr;
    const PluginLoader *plugins = nullptr;
};

} // namespace orvane
