// SPDX-License-Identifier: MIT
#include "host/desktop/view/camera.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane {

namespace {

const double Pi = 3.14159265358979323846;
const double HalfHeightSlope = 0.28;  // of the view at distance 1: an angle of 31 degrees
const double FramedPart = 0.9;        // of the view; the rest is margin
const double NearestPivot = 1e-4;     // scene sizes
const double NearestPoint = 1e-6;     // scene sizes; under it floats leave no place to choose
const double FarthestPivot = 1e3;     // scene sizes
const double FarthestEye = 4e3;       // scene sizes from the scene's centre
const double NearestOfFar = 1e-3;     // fraction: 24 bits of depth stay fine enough
const double NearOfPivot = 0.9;       // fraction: the pivot itself is never cut
const double NearestOfPivot = 0.05;   // fraction: what is looked at closely is not cut
const double BoundsSlack = 0.01;      // scene sizes
const double HighestLift = 0.02;      // fraction of the depth
const double EmptySceneRange = 100.0; // depths of the pivot

bool isFinite(const DoubleVector &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

std::array<DoubleVector, 8> cornersOf(const AxisAlignedBoundingBox &bounds)
{
    const DoubleVector low(bounds.minimum);
    const DoubleVector high(bounds.maximum);
    std::array<DoubleVector, 8> corners;
    for (int i = 0; i < 8; ++i)
        corners[size_t(i)] = {i & 1 ? high.x : low.x, i & 2 ? high.y : low.y,
                              i & 4 ? high.z : low.z};
    return corners;
}

DoubleVector centreOf(const AxisAlignedBoundingBox &bounds)
{
    return (DoubleVector(bounds.minimum) + DoubleVector(bounds.maximum)) * 0.5;
}

bool isBox(const AxisAlignedBoundingBox &bounds)
{
    return !bounds.IsEmpty() && bounds.minimum.IsFinite() && bounds.maximum.IsFinite();
}

} // namespace

Camera::Camera()
{
    move(m_state);
}

// Made of angles, so that the axes stay square to each other however often the camera turns, and
// straight from above too.
Camera::Axes Camera::axesOf(const State &state)
{
    const double sineYaw = std::sin(state.yaw);
    const double cosineYaw = std::cos(state.yaw);
    const double sinePitch = std::sin(state.pitch);
    const double cosinePitch = std::cos(state.pitch);
    return {{cosineYaw, 0.0, -sineYaw},
            {-sineYaw * sinePitch, cosinePitch, -cosineYaw * sinePitch},
            {sineYaw * cosinePitch, sinePitch, cosineYaw * cosinePitch}};
}

DoubleVector Camera::eye(const State &state)
{
    const Axes axes = axesOf(state);
    return state.pivot - axes.right * state.offset.x - axes.up * state.offset.y
           + axes.back * state.offset.z;
}

double Camera::sceneSize() const
{
    const double size = isBox(m_bounds) ? double(m_bounds.Diagonal()) : 0.0;
    return size > 0.0 && std::isfinite(size) ? size : 1.0;
}

// A depth that is beyond the limits already does not jump to them.
double Camera::nearestPivot() const
{
    return std::min(PivotDepth(), NearestPivot * sceneSize());
}

// How many scene sizes the eye is away.
double Camera::wandering(const State &state) const
{
    const DoubleVector centre = isBox(m_bounds) ? centreOf(m_bounds) : DoubleVector();
    const DoubleVector way = eye(state) - centre;
    return std::sqrt(Dot(way, way)) / sceneSize();
}

DoubleVector Camera::fromEye(const DoubleVector &world) const
{
    const DoubleVector way = world - m_state.pivot;
    return {m_state.offset.x + Dot(way, m_axes.right), m_state.offset.y + Dot(way, m_axes.up),
            m_state.offset.z - Dot(way, m_axes.back)};
}

double Camera::PixelSize(double depth) const
{
    return 2.0 * HalfHeightSlope * (m_orthographic ? PivotDepth() : depth) / m_viewport.height();
}

Matrix Camera::ViewMatrix() const
{
    const DoubleVector place = eye(m_state);
    Matrix matrix;
    const DoubleVector *const axes[] = {&m_axes.right, &m_axes.up, &m_axes.back};
    for (int column = 0; column < 3; ++column) {
        const DoubleVector &axis = *axes[column];
        matrix.SetElement(0, column, float(axis.x));
        matrix.SetElement(1, column, float(axis.y));
        matrix.SetElement(2, column, float(axis.z));
        matrix.SetElement(3, column, float(-Dot(place, axis)));
    }
    return matrix;
}

Matrix Camera::ProjectionMatrix(double liftPixels) const
{
    const double aspect = m_viewport.width() / m_viewport.height();
    const double range = m_far - m_near;
    const double sum = m_far + m_near;
    const double lift =
        std::min(HighestLift, liftPixels * PixelSize(1.0) / (m_orthographic ? PivotDepth() : 1.0));
    const double slope = HalfHeightSlope * (m_orthographic ? PivotDepth() : 1.0);
    Matrix matrix;
    matrix.SetElement(0, 0, float(1.0 / (slope * aspect)));
    matrix.SetElement(1, 1, float(1.0 / slope));
    if (m_orthographic) {
        matrix.SetElement(2, 2, float(-2.0 / range));
        matrix.SetElement(3, 2, float(-(sum + 2.0 * lift * PivotDepth()) / range));
        return matrix;
    }
    matrix.SetElement(2, 2, float(-sum / range));
    matrix.SetElement(2, 3, -1.0f);
    // The depth that a point at (1 - lift) times its distance would have.
    matrix.SetElement(3, 2, float(-2.0 * m_far * m_near / range / (1.0 - lift)));
    matrix.SetElement(3, 3, 0.0f);
    return matrix;
}

// Scene units to the right and up of the middle, at a depth of 1; orthographic: at any depth.
QPointF Camera::slopeAt(const QPointF &pixel) const
{
    const double scale = PixelSize(1.0);
    return {(pixel.x() - m_viewport.width() / 2.0) * scale,
            (m_viewport.height() / 2.0 - pixel.y()) * scale};
}

ViewRay Camera::RayThrough(const QPointF &pixel) const
{
    if (m_orthographic)
        return {PointAt(pixel, m_near), -BackAxis()};
    const QPointF slope = slopeAt(pixel);
    const DoubleVector way = m_axes.right * slope.x() + m_axes.up * slope.y() - m_axes.back;
    return {Eye(), (way * (1.0 / std::sqrt(Dot(way, way)))).Rounded()};
}

ScreenPoint Camera::Project(const Vector &world) const
{
    const DoubleVector place = fromEye(DoubleVector(world));
    if (!(place.z >= m_near))
        return {};
    const double size = PixelSize(place.z);
    return {{m_viewport.width() / 2.0 + place.x / size, m_viewport.height() / 2.0 - place.y / size},
            place.z,
            true};
}

Vector Camera::PointAt(const QPointF &pixel, double depth) const
{
    const QPointF across = slopeAt(pixel) * (m_orthographic ? 1.0 : depth);
    const DoubleVector &offset = m_state.offset;
    return (m_state.pivot + m_axes.right * (across.x() - offset.x)
            + m_axes.up * (across.y() - offset.y) + m_axes.back * (offset.z - depth))
        .Rounded();
}

void Camera::SetViewportSize(const QSizeF &size)
{
    if (size.isEmpty())
        return;
    m_viewport = size;
}

void Camera::SetSceneBounds(const AxisAlignedBoundingBox &bounds)
{
    m_bounds = bounds;
    fitClipping();
}

void Camera::SetOrthographic(bool orthographic)
{
    m_orthographic = orthographic;
    fitClipping();
}

void Camera::Frame(const AxisAlignedBoundingBox &bounds)
{
    if (!isBox(bounds))
        return;
    m_state.pivot = centreOf(bounds);
    m_state.offset = {0.0, 0.0, frameDepth(bounds)};
    fitClipping();
}

double Camera::frameDepth(const AxisAlignedBoundingBox &bounds) const
{
    const double slopeY = HalfHeightSlope * FramedPart;
    const double slopeX = slopeY * m_viewport.width() / m_viewport.height();
    const DoubleVector centre = centreOf(bounds);
    double depth = BoundsSlack * sceneSize();
    for (const DoubleVector &corner : cornersOf(bounds)) {
        const DoubleVector way = corner - centre;
        const double across = std::max(std::abs(Dot(way, m_axes.right)) / slopeX,
                                       std::abs(Dot(way, m_axes.up)) / slopeY);
        // Not on the eye either, where all of the box is in line with it.
        const double before = m_orthographic ? 0.0 : Dot(way, m_axes.back) * (1.0 + BoundsSlack);
        depth = std::max(depth, across + before);
    }
    return depth;
}

void Camera::LookFrom(StandardView view)
{
    State state = m_state;
    state.yaw = 0.0;
    state.pitch = 0.0;
    if (view == StandardView::Back)
        state.yaw = Pi;
    if (view == StandardView::Right)
        state.yaw = Pi / 2.0;
    if (view == StandardView::Left)
        state.yaw = -Pi / 2.0;
    if (view == StandardView::Top)
        state.pitch = Pi / 2.0;
    if (view == StandardView::Bottom)
        state.pitch = -Pi / 2.0;
    move(state);
}

bool Camera::SetPivot(const Vector &point)
{
    const DoubleVector pivot(point);
    DoubleVector offset = fromEye(pivot);
    const double nearest = std::min(PivotDepth(), NearestPoint * sceneSize());
    if (!isFinite(pivot) || !(m_orthographic || offset.z >= nearest))
        return false;
    // Along the view the eye of an orthographic one may stand anywhere; the depth is its scale.
    if (m_orthographic)
        offset.z = PivotDepth();
    State state = m_state;
    state.pivot = pivot;
    state.offset = offset;
    return move(state);
}

void Camera::Orbit(double right, double up)
{
    if (!std::isfinite(up))
        return; // the limits would make a number of it
    State state = m_state;
    state.yaw = std::remainder(state.yaw + right, 2.0 * Pi);
    state.pitch = qBound(-Pi / 2.0, state.pitch + up, Pi / 2.0);
    move(state);
}

void Camera::Pan(const QPointF &pixels)
{
    State state = m_state;
    const double size = PixelSize(PivotDepth());
    state.offset.x += pixels.x() * size;
    state.offset.y -= pixels.y() * size;
    move(state);
}

void Camera::Zoom(double factor)
{
    if (!(factor > 0.0))
        return;
    const double farthest = std::max(PivotDepth(), FarthestPivot * sceneSize());
    const double depth = qBound(nearestPivot(), PivotDepth() * factor, farthest);
    State state = m_state;
    state.offset = state.offset * (depth / PivotDepth());
    move(state);
}

// False, and nothing moved, where the state is none to be in.
bool Camera::move(const State &state)
{
    const bool isPlace = std::isfinite(state.yaw) && std::isfinite(state.pitch)
                         && isFinite(state.offset) && isFinite(state.pivot);
    if (!isPlace || wandering(state) > std::max(FarthestEye, wandering(m_state)))
        return false;
    m_state = state;
    m_axes = axesOf(m_state);
    fitClipping();
    return true;
}

void Camera::fitClipping()
{
    const double pivotDepth = PivotDepth();
    m_near = pivotDepth / EmptySceneRange;
    m_far = pivotDepth * EmptySceneRange;
    if (m_orthographic)
        m_near = -m_far;
    if (!isBox(m_bounds))
        return;
    double nearest = HUGE_VAL;
    double farthest = -HUGE_VAL;
    for (const DoubleVector &corner : cornersOf(m_bounds)) {
        const double depth = fromEye(corner).z;
        nearest = std::min(nearest, depth);
        farthest = std::max(farthest, depth);
    }
    // Beyond the bounds by what a lift of lines may need before them. The pivot may be in the
    // empty space around the scene.
    const double slack = BoundsSlack * sceneSize();
    m_far = std::max(farthest + slack, pivotDepth);
    if (m_orthographic) {
        m_near = std::min(nearest, pivotDepth) - slack - HighestLift * pivotDepth;
        return;
    }
    const double first = nearest - slack - HighestLift * std::abs(nearest);
    m_near = std::max(std::min(first, NearOfPivot * pivotDepth),
                      std::min(NearestOfFar * m_far, NearestOfPivot * pivotDepth));
}

} // namespace orvane
