// SPDX-License-Identifier: MIT
#include "host/desktop/view/navigation.h"

#include "host/desktop/view/camera.h"

#include <QRectF>

#include <cmath>
#include <utility>

namespace orvane {

namespace {

const double TurnOverHeight = 4.5;  // radians for a drag as long as the view is high
const double ZoomOverHeight = 4.0;  // exponent of the same
const double NearerPerNotch = 0.85; // factor of the distance
const double MostNotches = 20.0;    // of one event: some wheels spin freely

const Qt::KeyboardModifiers Keys =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool isSeen(const Camera &camera, const Vector &point)
{
    const ScreenPoint place = camera.Project(point);
    return place.seen && QRectF(QPointF(), camera.ViewportSize()).contains(place.pixel);
}

} // namespace

QVector<NavigationBinding> navigationBindings(NavigationPreset preset)
{
    switch (preset) {
    case NavigationPreset::AltDrag:
        return {{Qt::LeftButton, Qt::AltModifier, CameraMove::Orbit},
                {Qt::MiddleButton, Qt::AltModifier, CameraMove::Pan},
                {Qt::RightButton, Qt::AltModifier, CameraMove::Zoom}};
    case NavigationPreset::MiddleDrag:
        return {{Qt::MiddleButton, Qt::NoModifier, CameraMove::Orbit},
                {Qt::MiddleButton, Qt::ShiftModifier, CameraMove::Pan},
                {Qt::MiddleButton, Qt::ControlModifier, CameraMove::Zoom}};
    case NavigationPreset::Viewer:
        break;
    }
    return {{Qt::LeftButton, Qt::NoModifier, CameraMove::Orbit},
            {Qt::LeftButton, Qt::AltModifier, CameraMove::Orbit},
            {Qt::MiddleButton, Qt::NoModifier, CameraMove::Pan}};
}

Navigation::Navigation(Camera &camera, Pick pick) : m_camera(camera), m_pick(std::move(pick)) {}

std::optional<CameraMove> Navigation::Dragging() const
{
    if (m_button == Qt::NoButton)
        return std::nullopt;
    return m_move;
}

void Navigation::SetPreset(NavigationPreset preset)
{
    Cancel();
    m_preset = preset;
}

bool Navigation::Handle(const PointerEvent &event)
{
    switch (event.kind) {
    case PointerEvent::Press:
        return press(event);
    case PointerEvent::Move:
        return drag(event);
    case PointerEvent::Release:
        return release(event);
    case PointerEvent::Wheel:
        break;
    }
    return turnWheel(event);
}

void Navigation::Cancel()
{
    m_button = Qt::NoButton;
}

bool Navigation::press(const PointerEvent &event)
{
    // A button that is down once more was let go where nobody saw it.
    m_taken &= event.buttons & ~Qt::MouseButtons(event.button);
    if (m_taken == Qt::NoButton)
        Cancel();
    if (m_button == Qt::NoButton) {
        const bool toolHoldsButton = event.buttons & ~(m_taken | event.button);
        const std::optional<CameraMove> move = moveOf(event);
        if (toolHoldsButton || !move)
            return false;
        m_button = event.button;
        takeHold(*move, event.pixel);
    }
    m_taken |= event.button;
    return true;
}

bool Navigation::drag(const PointerEvent &event)
{
    if (m_button == Qt::NoButton)
        return (event.buttons & m_taken) && !(event.buttons & ~m_taken);
    if (!(event.buttons & m_button)) {
        Cancel();
        return false;
    }
    moveBy(event.pixel - m_last);
    m_last = event.pixel;
    return true;
}

bool Navigation::release(const PointerEvent &event)
{
    if (event.button == m_button)
        Cancel();
    const bool taken = m_taken & event.button;
    m_taken &= ~Qt::MouseButtons(event.button);
    return taken;
}

bool Navigation::turnWheel(const PointerEvent &event)
{
    if (event.notches == 0.0 || (event.buttons & ~m_taken))
        return false;
    if (m_button != Qt::NoButton)
        return true;
    takeHold(CameraMove::Zoom, event.pixel);
    m_camera.Zoom(std::pow(NearerPerNotch, qBound(-MostNotches, event.notches, MostNotches)));
    return true;
}

std::optional<CameraMove> Navigation::moveOf(const PointerEvent &event) const
{
    const Qt::KeyboardModifiers keys = event.modifiers & Keys;
    const QVector<NavigationBinding> bindings = navigationBindings(m_preset);
    for (const NavigationBinding &binding : bindings) {
        if (binding.button != event.button || binding.modifiers != keys)
            continue;
        const bool shared = binding.button == Qt::LeftButton && keys == Qt::NoModifier;
        if (shared && m_leftDrag == LeftDrag::Anywhere)
            return std::nullopt;
        if (shared && m_leftDrag == LeftDrag::OnSurface && m_pick(event.pixel))
            return std::nullopt;
        return binding.move;
    }
    return std::nullopt;
}

void Navigation::takeHold(CameraMove move, const QPointF &pixel)
{
    m_move = move;
    m_last = pixel;
    const std::optional<Vector> hit = m_pick(pixel);
    if (hit && m_camera.SetPivot(*hit))
        return;
    const QSizeF size = m_camera.ViewportSize();
    const QPointF middle(size.width() / 2.0, size.height() / 2.0);
    if (move != CameraMove::Orbit)
        m_camera.SetPivot(m_camera.PointAt(pixel, m_camera.PivotDepth()));
    else if (!isSeen(m_camera, m_camera.Pivot()))
        m_camera.SetPivot(m_camera.PointAt(middle, m_camera.PivotDepth()));
}

void Navigation::moveBy(const QPointF &way)
{
    const double height = m_camera.ViewportSize().height();
    switch (m_move) {
    case CameraMove::Orbit:
        // The scene follows the pointer: the eye goes the other way.
        m_camera.Orbit(-way.x() / height * TurnOverHeight, way.y() / height * TurnOverHeight);
        break;
    case CameraMove::Pan:
        m_camera.Pan(way);
        break;
    case CameraMove::Zoom:
        m_camera.Zoom(std::exp((way.y() - way.x()) / height * ZoomOverHeight));
        break;
    }
}

} // namespace orvane
