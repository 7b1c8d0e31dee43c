// SPDX-License-Identifier: MIT
#include "tests/host/desktop/whole/randomhand.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/mainwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

namespace {

const int LongestDrag = 30; // moves
const int MovesOfAFrame = 10;
const int Notch = 120; // of a wheel, in its own unit

QPoint placeIn(const QRect &rect, unsigned across, unsigned down)
{
    return rect.topLeft()
           + QPoint(int(across % unsigned(rect.width())), int(down % unsigned(rect.height())));
}

} // namespace

RandomHand::RandomHand(unsigned seed, orvane::MainWindow *window) : m_random(seed), m_window(window)
{}

void RandomHand::Act()
{
    const int choice = upTo(100);
    if (choice < 40)
        drag();
    else if (choice < 52)
        clickAnywhere();
    else if (choice < 60)
        clickInTheTool();
    else if (choice < 66)
        chooseFromMenu();
    else if (choice < 85)
        pressShortcut();
    else if (choice < 93)
        pressAnyKey();
    else
        turnWheel();
}

void RandomHand::LetGo()
{
    for (int i = 0; i < 10 && QApplication::activePopupWidget(); ++i)
        QApplication::activePopupWidget()->close();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
        QTest::mouseRelease(viewWindow(), button, {}, anyPlaceOfView());
    Press(QKeySequence(Qt::Key_Escape));
    for (int i = 0; i < 10 && QApplication::activePopupWidget(); ++i)
        QApplication::activePopupWidget()->close();
}

void RandomHand::Press(const QKeySequence &keys)
{
    QWidget *target = QApplication::activePopupWidget();
    if (!target)
        target = QApplication::activeWindow();
    if (!target)
        target = m_window;
    if (!target->windowHandle())
        return;
    for (int i = 0; i < keys.count(); ++i) {
        const Qt::KeyboardModifiers modifiers(keys[i] & int(Qt::KeyboardModifierMask));
        QTest::keyClick(target->windowHandle(), Qt::Key(keys[i] & ~int(Qt::KeyboardModifierMask)),
                        modifiers);
    }
}

void RandomHand::drag()
{
    const Qt::KeyboardModifiers modifiers = anyModifiers();
    const Qt::MouseButton button = upTo(4) == 0 ? anyButton() : Qt::LeftButton;
    QPoint place = anyPlaceOfView();
    QTest::mouseEvent(QTest::MouseMove, viewWindow(), Qt::NoButton, modifiers, place);
    QTest::mousePress(viewWindow(), button, modifiers, place);
    for (int moves = upTo(LongestDrag); moves > 0; --moves) {
        place = nearPlaceOfView(place);
        // Several moves a frame, as with any mouse.
        qt_handleMouseEvent(viewWindow(), place, viewWindow()->mapToGlobal(place), button,
                            Qt::NoButton, QEvent::MouseMove, modifiers,
                            ++QTest::lastMouseTimestamp);
        if (moves % MovesOfAFrame == 0)
            QApplication::processEvents();
        if (upTo(60) == 0)
            interruptDrag();
    }
    QTest::mouseRelease(viewWindow(), button, upTo(10) == 0 ? anyModifiers() : modifiers, place);
}

void RandomHand::interruptDrag()
{
    const int choice = upTo(5);
    if (choice == 0)
        pressShortcut();
    else if (choice == 1)
        pressAnyKey();
    else if (choice == 2)
        turnWheel();
    else if (choice == 3)
        QTest::mouseClick(viewWindow(), anyButton(), anyModifiers(), anyPlaceOfView());
    else
        Press(QKeySequence(QKeySequence::Undo));
}

void RandomHand::clickAnywhere()
{
    QWidget *widget = anyWindow();
    if (!widget->windowHandle())
        return;
    QWindow *window = widget->windowHandle();
    const QPoint place = placeIn(widget->rect(), m_random(), m_random());
    const Qt::MouseButton button = upTo(5) == 0 ? anyButton() : Qt::LeftButton;
    if (upTo(5) == 0)
        QTest::mouseDClick(window, button, anyModifiers(), place);
    else
        QTest::mouseClick(window, button, anyModifiers(), place);
}

void RandomHand::clickInTheTool()
{
    QVector<QWidget *> targets;
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top == m_window || !top->isVisible() || top->windowType() == Qt::Popup)
            continue;
        for (QWidget *child : top->findChildren<QWidget *>()) {
            if (child->isVisible() && child->isEnabled()
                && (qobject_cast<QAbstractButton *>(child) || qobject_cast<QLineEdit *>(child)
                    || qobject_cast<QComboBox *>(child)))
                targets.append(child);
        }
    }
    if (targets.isEmpty())
        return;
    QWidget *target = targets[upTo(targets.size())];
    QTest::mouseClick(target->window()->windowHandle(), Qt::LeftButton, {},
                      target->mapTo(target->window(), target->rect().center()));
}

void RandomHand::chooseFromMenu()
{
    QMenuBar *bar = m_window->menuBar();
    const QList<QAction *> titles = bar->actions();
    QAction *title = titles[upTo(titles.size())];
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                      bar->mapTo(m_window, bar->actionGeometry(title).center()));
    for (int level = 0; level < 2; ++level) {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu || menu->actions().isEmpty())
            return;
        QAction *entry = menu->actions().at(upTo(menu->actions().size()));
        // Who quits is gone.
        if (entry->objectName() == QLatin1String("quit"))
            return;
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {},
                          menu->actionGeometry(entry).center());
    }
}

void RandomHand::pressShortcut()
{
    QVector<QKeySequence> keys;
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        if (action->objectName() != QLatin1String("quit"))
            keys += action->shortcuts().toVector();
    }
    Press(keys[upTo(keys.size())]);
}

void RandomHand::pressAnyKey()
{
    const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter,     Qt::Key_Tab,
                            Qt::Key_Space,  Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,
                            Qt::Key_Down,   Qt::Key_Home,   Qt::Key_End,       Qt::Key_PageUp,
                            Qt::Key_Delete, Qt::Key_F10,    Qt::Key_Backspace, Qt::Key_PageDown};
    const int choice = upTo(32);
    const int key = choice < 16 ? int(keys[choice]) : Qt::Key_A + upTo(26);
    Press(QKeySequence(key | int(anyModifiers() & ~(Qt::ControlModifier | Qt::AltModifier))));
}

void RandomHand::turnWheel()
{
    if (QApplication::activePopupWidget())
        return;
    QWidget *window = anyWindow();
    const QPoint place = placeIn(window->rect(), m_random(), m_random());
    QWidget *child = window->childAt(place);
    QWidget *target = child ? child : window;
    QWheelEvent event(target->mapFrom(window, place), window->mapToGlobal(place), {},
                      {0, Notch * (upTo(7) - 3)}, Qt::NoButton, anyModifiers(), Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(target, &event);
    QApplication::processEvents();
}

Qt::KeyboardModifiers RandomHand::anyModifiers()
{
    const Qt::KeyboardModifiers all[] = {Qt::NoModifier,
                                         Qt::NoModifier,
                                         Qt::NoModifier,
                                         Qt::ShiftModifier,
                                         Qt::ControlModifier,
                                         Qt::AltModifier,
                                         Qt::ControlModifier | Qt::ShiftModifier};
    return all[upTo(7)];
}

Qt::MouseButton RandomHand::anyButton()
{
    const Qt::MouseButton all[] = {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton};
    return all[upTo(3)];
}

QWidget *RandomHand::anyWindow()
{
    QWidget *popup = QApplication::activePopupWidget();
    if (popup)
        return popup;
    QVector<QWidget *> all;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowHandle() && !widget->size().isEmpty())
            all.append(widget);
    }
    return all.isEmpty() || upTo(3) != 0 ? m_window : all[upTo(all.size())];
}

QWindow *RandomHand::viewWindow() const
{
    return m_window->windowHandle();
}

QPoint RandomHand::anyPlaceOfView()
{
    // Mostly about the middle: there is the model.
    const QWidget &view = m_window->Viewport();
    QRect rect = view.rect();
    if (upTo(4) != 0)
        rect.adjust(rect.width() / 4, rect.height() / 6, -rect.width() / 4, -rect.height() / 6);
    return view.mapTo(m_window, placeIn(rect, m_random(), m_random()));
}

QPoint RandomHand::nearPlaceOfView(const QPoint &place)
{
    if (upTo(20) == 0)
        return anyPlaceOfView();
    return place + QPoint(upTo(41) - 20, upTo(41) - 20);
}
