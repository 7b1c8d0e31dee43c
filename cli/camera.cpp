// SPDX-License-Identifier: MIT
#include "cli/camera.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const double HalfAngleTangent = 0.22; // of the frame's larger side: a long lens, little distortion
const double NearestDepth = 1e-3;     // fraction of the eye's distance
const double SmallestDistance = 1e-6; // scene units: a single point is seen from somewhere
const float FarthestPixel = 1e7f;

// The span of a set of points that two planes through the eye have to take in.
struct Wedge
{
    void add(double across, double back, double slope)
    {
        right = std::max(right, across + back * slope);
        left = std::max(left, -across + back * slope);
    }
    double middle() const { return (right - left) / 2.0; }
    double distance(double slope) const { return (right + left) / (2.0 * slope); }

    double right = -HUGE_VAL;
    double left = -HUGE_VAL;
};

} // namespace

Camera::Camera(const Vector &direction, const QVector<Vector> &points, const QRectF &frame)
    : m_back(Normalized(direction)), m_middle(frame.center())
{
    m_right = Normalized(Vector(0.0f, 1.0f, 0.0f) & m_back);
    m_up = m_back & m_right;
    m_scale = std::max(frame.width(), frame.height()) / (2.0 * HalfAngleTangent);
    if (!points.isEmpty())
        fit(points, frame);
}

void Camera::fit(const QVector<Vector> &points, const QRectF &frame)
{
    orvane::AxisAlignedBoundingBox bounds;
    for (const Vector &point : points)
        bounds.Extend(point);
    m_origin = bounds.Center();
    const double slopeX = frame.width() / 2.0 / m_scale;
    const double slopeY = frame.height() / 2.0 / m_scale;
    Wedge across;
    Wedge upright;
    double nearest = -HUGE_VAL;
    for (const Vector &point : points) {
        const Vector p = turned(point - m_origin);
        across.add(p.x, p.z, slopeX);
        upright.add(p.y, p.z, slopeY);
        nearest = std::max(nearest, double(p.z));
    }
    const double distance = std::max(across.distance(slopeX), upright.distance(slopeY));
    m_eye[0] = across.middle();
    m_eye[1] = upright.middle();
    m_eye[2] = std::max(distance, nearest + SmallestDistance);
}

ScreenPoint Camera::project(const Vector &world) const
{
    const Vector p = turned(world - m_origin);
    const double depth = m_eye[2] - p.z;
    if (!(depth > NearestDepth * std::abs(m_eye[2])))
        return {};
    const double scale = m_scale / depth;
    const ScreenPoint screen{float(m_middle.x() + (p.x - m_eye[0]) * scale),
                             float(m_middle.y() - (p.y - m_eye[1]) * scale), float(1.0 / depth)};
    const bool inReach = std::abs(screen.x) < FarthestPixel && std::abs(screen.y) < FarthestPixel;
    return inReach ? screen : ScreenPoint();
}

Vector Camera::turned(const Vector &direction) const
{
    return {Dot(direction, m_right), Dot(direction, m_up), Dot(direction, m_back)};
}

float Camera::facing(const Vector &world, const Vector &normal) const
{
    const Vector p = turned(world - m_origin);
    const Vector toEye(float(m_eye[0] - p.x), float(m_eye[1] - p.y), float(m_eye[2] - p.z));
    return Dot(Normalized(toEye), turned(normal));
}
