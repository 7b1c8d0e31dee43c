// SPDX-License-Identifier: MIT
#pragma once

#include "cli/camera.h"
#include "cli/shading.h"

#include <QImage>
#include <QVector>

//! Which side of a surface is turned to the eye.
enum class Side { Front, Back };

//! How far behind what is drawn already something still shows, in scene units.
struct Reach
{
    float sameSide = 0.0f;  // behind a backdrop that turns the same side to the eye
    float inside = 0.0f;    // the same, up to where the backdrop's far side follows
    float otherSide = 0.0f; // behind a backdrop that turns the other side, as a thin wall does
    float front = 0.0f;
};

//! A corner of a triangle: its place and its normal as the camera turns it.
struct ShadedCorner
{
    ScreenPoint at;
    orvane::Vector normal;
};

//! Draws triangles, lines and dots with depth into rows of a picture, at nine samples a pixel.
//! There are two depths: of a backdrop, drawn first, and of what is drawn in front of it, which
//! may reach a little behind the backdrop. What is not in front of the eye is left out.
class Rasteriser
{
public:
    //! Rows of the picture from firstRow on; what they show already is the background.
    Rasteriser(const QImage &picture, int firstRow, int rows);

    void drawBackdrop(const ShadedCorner (&corners)[3], const Material &material);
    void drawFront(const ShadedCorner (&corners)[3], const Material &material, const Reach &reach);
    //! Width in pixels, ends round. The side is that of the surface the line runs on.
    void drawLine(const ScreenPoint &a, const ScreenPoint &b, float width, QRgb colour,
                  const Reach &reach, Side side);
    //! Could anything between these heights, in pixels, show in the rows?
    bool touches(float top, float bottom) const;

    void copyTo(QImage &picture) const;

private:
    enum class Layer { Backdrop, Front };
    struct Span;
    class Plane;

    void fillTriangle(const ShadedCorner (&corners)[3], const Material &material, Layer layer,
                      const Reach &reach);
    void fillSpan(const Span &span, const Plane &plane, Layer layer, const Reach &reach);
    bool isHidden(int sample, float depth, const Reach &reach, Side side) const;

    int m_width;    // samples
    int m_firstRow; // samples
    int m_rows;     // samples
    QVector<QRgb> m_colours;
    QVector<float> m_backdrop[2]; // by side: distance before the eye of the nearest
    QVector<float> m_front;       // the same
};
