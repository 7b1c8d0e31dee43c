// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/pointerevents.h"

#include <QMouseEvent>
#include <QTabletEvent>
#include <QWheelEvent>

namespace orvane {

namespace {

const double NotchAngle = 120.0; // eighths of a degree

PointerEvent::Kind kindOf(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TabletPress:
        return PointerEvent::Press;
    case QEvent::MouseButtonRelease:
    case QEvent::TabletRelease:
        return PointerEvent::Release;
    default:
        return PointerEvent::Move;
    }
}

} // namespace

PointerEvent pointerEvent(const QMouseEvent &event)
{
    PointerEvent result;
    result.kind = kindOf(event.type());
    result.pixel = event.localPos();
    if (result.kind != PointerEvent::Move)
        result.button = event.button();
    result.buttons = event.buttons();
    result.modifiers = event.modifiers();
    return result;
}

PointerEvent pointerEvent(const QTabletEvent &event)
{
    PointerEvent result;
    result.kind = kindOf(event.type());
    result.pixel = event.posF();
    result.buttons = event.buttons();
    result.modifiers = event.modifiers();
    if (result.kind == PointerEvent::Move)
        return result;
    // Some drivers report a tip that touches without a button.
    result.button = event.button() == Qt::NoButton ? Qt::LeftButton : event.button();
    result.buttons.setFlag(result.button, result.kind == PointerEvent::Press);
    return result;
}

PointerEvent pointerEvent(const QWheelEvent &event)
{
    PointerEvent result;
    result.kind = PointerEvent::Wheel;
    result.pixel = event.position();
    result.buttons = event.buttons();
    result.modifiers = event.modifiers();
    const QPoint angle = event.angleDelta();
    result.notches = (angle.y() != 0 ? angle.y() : angle.x()) / NotchAngle;
    return result;
}

} // namespace orvane
