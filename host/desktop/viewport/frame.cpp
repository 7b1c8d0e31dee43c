// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/frame.h"

namespace orvane {

Matrix Frame::PixelsToClip() const
{
    const QSizeF size = camera.ViewportSize();
    Matrix matrix;
    matrix.SetElement(0, 0, float(2.0 / size.width()));
    matrix.SetElement(1, 1, float(-2.0 / size.height()));
    matrix.SetRow(3, Vector(-1.0f, 1.0f, 0.0f));
    return matrix;
}

} // namespace orvane
