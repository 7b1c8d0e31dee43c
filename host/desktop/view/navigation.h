// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QPointF>
#include <QVector>
#include <Qt>
#include <QtGlobal>

#include <functional>
#include <optional>

namespace orvane {

class Camera;

//! What the mouse, the pen or the wheel did over the view.
struct PointerEvent
{
    enum Kind { Press, Move, Release, Wheel };

    Kind kind = Move;
    QPointF pixel;
    Qt::MouseButton button = Qt::NoButton;   // the one that went down or up
    Qt::MouseButtons buttons = Qt::NoButton; // down after the event
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    double notches = 0.0; // of the wheel, away from the user
};

enum class CameraMove { Orbit, Pan, Zoom };

enum class NavigationPreset {
    AltDrag,    //!< Alt and a button
    MiddleDrag, //!< the middle button, alone or with Shift or Ctrl
    Viewer      //!< buttons alone: the left one shares with drawing, see LeftDrag
};

//! A drag that moves the camera.
struct NavigationBinding
{
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    CameraMove move = CameraMove::Orbit;
};

//! The drags of a preset, in the order in which people read them.
QVector<NavigationBinding> navigationBindings(NavigationPreset preset);

//! What the tool in hand does with a plain left drag. Matters in the preset Viewer alone: there
//! such a drag orbits when the tool leaves it.
enum class LeftDrag {
    Unused,    //!< nothing: it orbits wherever it begins
    OnSurface, //!< the tool draws on the surface: it orbits when it begins beside the surface
    Anywhere   //!< the tool uses it everywhere (a box of selection, a cut): only Alt and it orbit
};

//! Turns pointer events into moves of a camera. A drag is decided when its button goes down and
//! belongs to one side until the button goes up, whatever keys change meanwhile: what navigation
//! has not taken then is the tool's. While the tool holds a button, camera and wheel rest.
//! Orbiting turns about what was under the pointer; panning and zooming hold it under the pointer.
class Navigation
{
public:
    //! The place of the surface that is seen at a pixel; none beside it.
    using Pick = std::function<std::optional<Vector>(const QPointF &pixel)>;

    //! Keeps the camera, which must outlive it.
    Navigation(Camera &camera, Pick pick);

    NavigationPreset Preset() const { return m_preset; }
    //! The move that a drag makes right now, for the cursor; none between drags.
    std::optional<CameraMove> Dragging() const;

    void SetPreset(NavigationPreset preset);
    void SetLeftDrag(LeftDrag use) { m_leftDrag = use; }
    //! Was the event for the camera? If not it is the tool's. Picks at a press and at the wheel
    //! only.
    bool Handle(const PointerEvent &event);
    //! Ends the drag without a release, as when the window loses the pointer.
    void Cancel();

private:
    bool press(const PointerEvent &event);
    bool drag(const PointerEvent &event);
    bool release(const PointerEvent &event);
    bool turnWheel(const PointerEvent &event);
    std::optional<CameraMove> moveOf(const PointerEvent &event) const;
    void takeHold(CameraMove move, const QPointF &pixel);
    void moveBy(const QPointF &way);

    Camera &m_camera;
    Pick m_pick;
    NavigationPreset m_preset = NavigationPreset::AltDrag;
    LeftDrag m_leftDrag = LeftDrag::Unused;
    CameraMove m_move = CameraMove::Orbit;
    Qt::MouseButton m_button = Qt::NoButton; // of the drag; none between drags
    Qt::MouseButtons m_taken = Qt::NoButton; // went down for the camera, or during its drag
    QPointF m_last;                          // where the drag is
};

} // namespace orvane
