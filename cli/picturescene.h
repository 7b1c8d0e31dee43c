// SPDX-License-Identifier: MIT
#pragma once

#include "cli/camera.h"
#include "cli/picture.h"
#include "cli/surface.h"

//! The drawable parts of a picture's content, in world space.
struct PictureScene
{
    explicit PictureScene(const PictureContent &content);

    bool isEmpty() const;
    //! What the picture should hold: all corners of surfaces. Without any, points of curves and
    //! crossings; with surfaces a line that strays far from them does not make them small.
    QVector<orvane::Vector> pointsToFit() const;

    QVector<Surface> source; // at most one
    QVector<Surface> meshes;
    QVector<QVector<orvane::Vector>> strokes; // curves, cut where a point cannot be drawn
    int curveCount = 0;
    QVector<orvane::Vector> crossings;
};

//! Sees the new meshes, or else the source, from a good angle and holds all of the scene.
Camera goodCamera(const PictureScene &scene, const QSize &size);
