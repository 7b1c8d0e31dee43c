// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/mainwindow.h"

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QScopedPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

namespace orvane {
class PluginLoader;
class ViewportWidget;
} // namespace orvane

//! The desktop under a hand: real windows on a real display, worked with mouse and keys, and
//! photographed from the screen. Settings are its own; a step that fails ends the program.
//!
//! Places in the view are fractions of the picture's area, which lies in the middle of the view.
class PictureDesk
{
public:
    //! plugins: not loaded yet; outlives it.
    explicit PictureDesk(orvane::PluginLoader *plugins);
    ~PictureDesk();

    //! What the photos show of the view; pixels.
    void SetArea(const QSize &area) { m_area = area; }

    //! A new scene with the bundled example, without its curves if wanted.
    void OpenExample(bool withCurves);
    //! All of the scene from the front, about two areas high, then turned (radians) and moved so
    //! that the place (in area heights from the middle) comes to the middle, and brought nearer.
    void LookAt(double x, double y, double nearer, double right = 0.0, double up = 0.0);
    //! As by its menu entry or button: the action of that object name.
    void Trigger(const char *action);
    void SetOption(const char *action, bool on);
    //! In the bar at the top.
    void SetNumber(const char *name, double value);
    void ChooseTool(const char *id);

    //! The pointer alone.
    void Hover(const QPointF &place);
    //! Press and move through the places, and stay there with the button down.
    void Drag(const QVector<QPointF> &places, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Release(Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    //! Drag and Release, with the pointer out of the view after.
    void Stroke(const QVector<QPointF> &places, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    //! Takes the pointer out of the view.
    void Away();

    //! Opens the menu and lets the pointer stand on the entry; a click there when choose is true.
    void PointInMenu(const char *menu, const QString &entry, bool choose = false);
    void CloseMenus();
    //! Opens the tool's dialog from the Mesh menu, creates, and keeps a mesh with faults.
    void CreateMesh();

    //! Of the picture's area, in the pixels of the screen, with the pointer.
    QImage Photo();
    //! The same, of an area that begins where the open menu's title is.
    QImage PhotoFrom(const char *menu);

private:
    void Settle() const;
    orvane::ViewportWidget &view() const { return m_window->Viewport(); }
    QAction *action(const char *name) const;
    QPoint pixel(const QPointF &place) const;
    QRect area() const; // of the view
    void move(const QPoint &place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    QImage photo(const QRect &global) const;

    QTemporaryDir m_folder;
    QSettings m_settings;
    QSize m_area;
    QScopedPointer<orvane::MainWindow> m_window;
    QPoint m_last;               // of the view
    bool m_showsPointer = false; // in photos
    bool m_inMenu = false;
    QPoint m_pointer; // global
};
