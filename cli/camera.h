// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QRectF>
#include <QVector>

//! Where a point lands in a picture.
struct ScreenPoint
{
    bool isSeen() const { return inverseDepth > 0.0f; }

    float x = 0.0f;            // pixels from the left
    float y = 0.0f;            // pixels from the top
    float inverseDepth = 0.0f; // 1 / distance before the eye, scene units; 0 = cannot be drawn
};

//! An upright camera with perspective, +y up.
class Camera
{
public:
    //! Looks against the direction (from the middle of things to the eye, not straight up),
    //! so near that the points just fill the frame, a rectangle in pixels. No points: a view of
    //! the origin.
    Camera(const orvane::Vector &direction, const QVector<orvane::Vector> &points,
           const QRectF &frame);

    ScreenPoint project(const orvane::Vector &world) const;
    //! Components along the camera's right, up and towards the eye.
    orvane::Vector turned(const orvane::Vector &direction) const;
    //! Does a surface with that normal turn its front to the eye there? Cosine, -1 to 1.
    float facing(const orvane::Vector &world, const orvane::Vector &normal) const;

private:
    void fit(const QVector<orvane::Vector> &points, const QRectF &frame);

    orvane::Vector m_right;
    orvane::Vector m_up;
    orvane::Vector m_back;             // towards the eye
    orvane::Vector m_origin;           // scene point that the eye's place is counted from
    double m_eye[3] = {0.0, 0.0, 1.0}; // right, up and back of the origin
    double m_scale = 1.0;              // pixels per unit at distance 1
    QPointF m_middle;                  // of the frame, pixels
};
