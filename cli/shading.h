// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QColor>

//! A colour as light counts it: red, green and blue from 0 to 1, linear.
orvane::Vector linearColour(const QColor &colour);

//! What a surface is made of.
struct Material
{
    orvane::Vector colour; // linear
    float contrast = 1.0f; // 0: no light and shade, 1: all of it
};

//! The colour of a surface in the light of the picture: a warm key light from the upper left, a
//! cool fill from the right, light from above and a darker rim. The normal counts to the
//! camera's right, up and towards the eye; of any length, zero is lit as if it faced the eye.
QRgb litColour(const orvane::Vector &normal, const Material &material);

//! The part of a polygon's count of corners that its colour tells.
enum CornerClass { Triangle, Quad, Pentagon, ManyCorners, CornerClassCount };

CornerClass cornerClass(int corners);
//! Colours that also people with a colour weakness tell apart.
QColor cornerColour(CornerClass corners);

namespace PictureColour {
extern const QColor Clay;       // a source mesh alone
extern const QColor DimmedClay; // a source mesh under new ones
extern const QColor Edge;
extern const QColor Curve;
extern const QColor Crossing;
extern const QColor Text;
extern const QColor BackgroundAbove;
extern const QColor BackgroundBelow;
} // namespace PictureColour
