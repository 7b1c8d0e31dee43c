// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/camera.h"

#include <QOpenGLFunctions_2_1>

namespace orvane {

struct ViewOptions;

//! What the renderers of one frame share. Its context is current.
struct Frame
{
    //! World to clip space; lift as for Camera::ProjectionMatrix.
    Matrix WorldToClip(double lift = 0.0) const
    {
        return camera.ViewMatrix() * camera.ProjectionMatrix(lift);
    }
    //! Pixels of the view to clip space.
    Matrix PixelsToClip() const;
    void SetLineWidth(float pixels) const { gl.glLineWidth(pixels * pixelRatio); }
    void SetPointSize(float pixels) const { gl.glPointSize(pixels * pixelRatio); }

    QOpenGLFunctions_2_1 &gl;
    const Camera &camera;
    const ViewOptions &options;
    float pixelRatio; // device pixels a pixel
};

} // namespace orvane
