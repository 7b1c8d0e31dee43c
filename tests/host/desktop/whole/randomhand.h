// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QVector>

#include <random>

class QWidget;
class QWindow;

namespace orvane {
class MainWindow;
}

//! Somebody who does anything at all with mouse and keys, over a main window and what it opens.
//! Events take the way of those of the system: through windows, menus and focus.
class RandomHand
{
public:
    //! The window outlives it.
    RandomHand(unsigned seed, orvane::MainWindow *window);

    //! One thing: a drag, a click, a key, a turn of the wheel.
    void Act();
    //! Nothing is held down any more, no menu is open.
    void LetGo();
    //! A key where the focus is; of the main window when no window has it.
    void Press(const QKeySequence &keys);

private:
    void drag();
    void clickAnywhere();
    void clickInTheTool();
    void chooseFromMenu();
    void pressShortcut();
    void pressAnyKey();
    void turnWheel();
    void interruptDrag();

    int upTo(int count) { return int(m_random() % unsigned(count)); }
    Qt::KeyboardModifiers anyModifiers();
    Qt::MouseButton anyButton();
    QWidget *anyWindow();
    QWindow *viewWindow() const;
    //! In the window of the view.
    QPoint anyPlaceOfView();
    QPoint nearPlaceOfView(const QPoint &place);

    std::mt19937 m_random;
    orvane::MainWindow *m_window;
};
