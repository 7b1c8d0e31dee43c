// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/doublevector.h"

#include <orvane/kernel/scenecamera.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <QPointF>
#include <QSizeF>

namespace orvane {

//! From where the scene is looked at: +y is up, and what faces the front looks along +z.
enum class StandardView { Front, Back, Right, Left, Top, Bottom };

struct ViewRay
{
    Vector origin;
    Vector direction; // of length 1
};

//! Where a point of the scene is seen.
struct ScreenPoint
{
    QPointF pixel;      // from the upper left corner of the view, y down
    double depth = 0.0; // scene units before the eye, along the view
    bool seen = false;  // not before the near plane; the pixel counts only then
};

//! A turntable camera. It turns about a pivot, which may be seen anywhere in the view: its pixel
//! stays while the camera turns or zooms. +y stays upright; over a pole it does not tip, it stops
//! there, and no view is without a clear up. An orthographic view shows the plane through the
//! pivot at the size that perspective does. Moves that are not finite, or that lead thousands of
//! scene sizes away, are ignored.
//!
//! Matrices work on row vectors, as Matrix does. Their sixteen floats, row after row
//! (Matrix::Data), are the very order that OpenGL's glLoadMatrixf and uniforms without transposing
//! expect, for there columns are stored and vectors stand on the other side.
class Camera : public SceneCamera
{
public:
    Camera();

    bool IsOrthographic() const { return m_orthographic; }
    //! In the unit of the pixels of all other functions.
    QSizeF ViewportSize() const { return m_viewport; }
    //! Of the orthographic view: where the eye of the perspective one would be.
    Vector Eye() const { return eye(m_state).Rounded(); }
    Vector RightAxis() const { return m_axes.right.Rounded(); }
    Vector UpAxis() const { return m_axes.up.Rounded(); }
    //! Towards the eye.
    Vector BackAxis() const { return m_axes.back.Rounded(); }
    Vector Pivot() const { return m_state.pivot.Rounded(); }
    double PivotDepth() const { return m_state.offset.z; }
    //! Depths of the clipping planes, fitted to the scene's bounds and the pivot. Orthographic: may
    //! be negative.
    double NearDepth() const { return m_near; }
    double FarDepth() const { return m_far; }
    //! How many scene units a pixel is high at a depth.
    double PixelSize(double depth) const;

    Matrix WorldToClip() const override { return ViewMatrix() * ProjectionMatrix(); }
    //! World to eye: x right, y up, z against the view.
    Matrix ViewMatrix() const;
    //! Eye to clip space, OpenGL's. A lift brings all that is drawn nearer in depth by the size of
    //! so many pixels (at most a fiftieth of the depth), and changes no pixel: for lines that lie
    //! on a surface.
    Matrix ProjectionMatrix(double liftPixels = 0.0) const;

    //! Starts at the eye; in the orthographic view on the near plane.
    ViewRay RayThrough(const QPointF &pixel) const;
    ScreenPoint Project(const Vector &world) const;
    //! Scene units before the eye, along the view; negative behind it.
    double DepthOf(const Vector &world) const { return fromEye(DoubleVector(world)).z; }
    //! The point that is seen at a pixel in a depth.
    Vector PointAt(const QPointF &pixel, double depth) const;

    //! An empty size is ignored.
    void SetViewportSize(const QSizeF &size);
    //! What has to lie between the clipping planes; its size also bounds zooming.
    void SetSceneBounds(const AxisAlignedBoundingBox &bounds);
    void SetOrthographic(bool orthographic);

    //! Looks at the box from where it is seen now, all of it in view with a small margin. The
    //! pivot is then its centre, in the middle of the view. An empty box is ignored.
    void Frame(const AxisAlignedBoundingBox &bounds);
    //! Turns about the pivot.
    void LookFrom(StandardView view);
    //! Changes nothing that is seen. False, and unchanged, for a point behind the eye or as good
    //! as on it, and for one too far away.
    bool SetPivot(const Vector &point);
    //! Turns the camera to the right and up about the pivot; radians.
    void Orbit(double right, double up);
    //! Moves the scene at the depth of the pivot by that many pixels.
    void Pan(const QPointF &pixels);
    //! Multiplies the distance to the pivot by a factor above zero; never through the pivot, and
    //! not nearer or farther than makes sense for the scene. The pivot stays at its pixel.
    void Zoom(double factor);

private:
    struct Axes
    {
        DoubleVector right;
        DoubleVector up;
        DoubleVector back;
    };
    struct State
    {
        double yaw = 0.0;   // radians, of the eye about +y from +z
        double pitch = 0.0; // radians, of the eye above the horizon
        DoubleVector pivot;
        DoubleVector offset{0.0, 0.0, 5.0}; // of the pivot from the eye: right, up, depth
    };

    static Axes axesOf(const State &state);
    static DoubleVector eye(const State &state);

    double sceneSize() const;
    double nearestPivot() const;
    double wandering(const State &state) const;
    double frameDepth(const AxisAlignedBoundingBox &bounds) const;
    DoubleVector fromEye(const DoubleVector &world) const;
    QPointF slopeAt(const QPointF &pixel) const;
    bool move(const State &state);
    void fitClipping();

    State m_state;
    Axes m_axes;
    AxisAlignedBoundingBox m_bounds;
    QSizeF m_viewport{100.0, 100.0};
    double m_near = 0.0;
    double m_far = 0.0;
    bool m_orthographic = false;
};

} // namespace orvane
