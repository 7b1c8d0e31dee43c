// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/viewportwidget.h"
#include "tests/support/scenecleaner.h"

#include <QImage>

namespace orvane {
class Geometry;
class OrvaneCurve;
} // namespace orvane

//! A view of 400 x 300 pixels on the screen, without grid and axes.
class ViewportTest : public SceneCleaner
{
protected:
    ViewportTest();

    //! Draws a frame now.
    QImage picture() { return view.grabFramebuffer(); }
    //! The pixel where a place of the world is seen.
    QPoint pixelOf(const orvane::Vector &place);
    QColor colourAt(const QImage &image, const orvane::Vector &place);
    //! Sets one of the view's options.
    template <typename Value>
    void setOption(Value orvane::ViewOptions::*option, Value value)
    {
        orvane::ViewOptions options = view.Options();
        options.*option = value;
        view.SetOptions(options);
    }
    //! Shows the whole scene from before it, turned by so many radians.
    void lookAtAll(double right = 0.0, double up = 0.0);

    orvane::ViewportWidget view;
};

//! The greatest difference of a channel, 0 to 255.
int difference(const QColor &a, const QColor &b);
//! How many pixels differ by more than a trifle.
int differentPixels(const QImage &a, const QImage &b);
//! Is the colour nearer to the wanted one than to the other?
bool isNearer(const QColor &colour, const QColor &wanted, const QColor &other);

//! A curve of the kernel's scene through the places.
orvane::OrvaneCurve *addCurve(const QVector<orvane::Vector> &places, bool closed = false);
//! A circle about the z axis in the plane z = height.
QVector<orvane::Vector> circle(float radius, float height, int points);
