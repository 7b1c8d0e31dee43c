// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QImage>
#include <QSize>
#include <QVector>

namespace orvane {
class Mesh;
class OrvaneCurve;
} // namespace orvane

//! What a picture shows. Nothing is owned; null and empty parts are left out.
struct PictureContent
{
    const orvane::Mesh *source = nullptr; // dimmed under new meshes; alone, as lit clay
    QVector<const orvane::Mesh *> meshes; // the new ones, faces coloured by corner count
    QVector<const orvane::OrvaneCurve *> curves;
    QVector<orvane::Vector> crossings; // world space
};

//! Draws the content from a good angle, +y up, with a legend that counts what is shown.
//! Needs a QGuiApplication (any platform, offscreen too) for the legend's text. The same
//! content gives the same pixels. What is not finite is left out; with nothing to show the
//! picture is its background and a legend that says so. An empty size gives a null image.
QImage renderPicture(const PictureContent &content, const QSize &size = QSize(1600, 1200));
