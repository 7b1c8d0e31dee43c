// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/navigation.h"

class QMouseEvent;
class QTabletEvent;
class QWheelEvent;

namespace orvane {

//! The second press of a double click is a press.
PointerEvent pointerEvent(const QMouseEvent &event);
//! A pen's tip is the left button.
PointerEvent pointerEvent(const QTabletEvent &event);
//! Alt turns a wheel sideways: that still counts.
PointerEvent pointerEvent(const QWheelEvent &event);

} // namespace orvane
