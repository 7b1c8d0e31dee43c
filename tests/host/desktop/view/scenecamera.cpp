// SPDX-License-Identifier: MIT
#include "tests/host/desktop/view/scenecamera.h"

#include "tests/support/shapes.h"

#include <QLineF>

using orvane::AxisAlignedBoundingBox;
using orvane::Camera;
using orvane::Vector;

AxisAlignedBoundingBox boxBetween(const Vector &low, const Vector &high)
{
    AxisAlignedBoundingBox box;
    box.Extend(low);
    box.Extend(high);
    return box;
}

AxisAlignedBoundingBox randomBox(std::mt19937 &random)
{
    const Vector middle = randomVector(random, 3.0f);
    AxisAlignedBoundingBox box;
    for (int i = 0; i < 4; ++i)
        box.Extend(middle + randomVector(random, 2.0f));
    return box;
}

Vector randomPointIn(const AxisAlignedBoundingBox &box, std::mt19937 &random)
{
    const float x = randomBetween(random, box.minimum.x, box.maximum.x);
    const float y = randomBetween(random, box.minimum.y, box.maximum.y);
    const float z = randomBetween(random, box.minimum.z, box.maximum.z);
    return {x, y, z};
}

Camera cameraAt(const AxisAlignedBoundingBox &box, bool orthographic, std::mt19937 &random)
{
    Camera camera;
    camera.SetViewportSize(ViewSize);
    camera.SetSceneBounds(box);
    camera.SetOrthographic(orthographic);
    camera.Orbit(double(randomBetween(random, -3.0f, 3.0f)),
                 double(randomBetween(random, -1.5f, 1.5f)));
    camera.Frame(box);
    return camera;
}

QPointF randomPixel(std::mt19937 &random)
{
    const float x = randomBetween(random, 0.0f, float(ViewSize.width()));
    const float y = randomBetween(random, 0.0f, float(ViewSize.height()));
    return {double(x), double(y)};
}

double apart(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}
