// SPDX-License-Identifier: MIT
#include "tests/host/desktop/viewport/viewporttest.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {
const int Trifle = 6; // of 255
} // namespace

ViewportTest::ViewportTest()
{
    orvane::Kernel()->Preferences()->renderMeshFaults.SetValue(false);
    orvane::ViewOptions options;
    options.showGrid = false;
    options.showGizmo = false;
    view.SetOptions(options);
    view.resize(400, 300);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
}

QPoint ViewportTest::pixelOf(const Vector &place)
{
    const orvane::ScreenPoint point = view.Camera().Project(place);
    EXPECT_TRUE(point.seen);
    return {int(std::floor(point.pixel.x())), int(std::floor(point.pixel.y()))};
}

QColor ViewportTest::colourAt(const QImage &image, const Vector &place)
{
    return image.pixelColor(pixelOf(place));
}

void ViewportTest::lookAtAll(double right, double up)
{
    view.Look(orvane::StandardView::Front);
    view.Camera().Orbit(right, up);
    view.FrameAll();
}

int difference(const QColor &a, const QColor &b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

int differentPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += difference(a.pixelColor(x, y), b.pixelColor(x, y)) > Trifle;
    }
    return count;
}

bool isNearer(const QColor &colour, const QColor &wanted, const QColor &other)
{
    return difference(colour, wanted) < difference(colour, other);
}

OrvaneCurve *addCurve(const QVector<Vector> &places, bool closed)
{
    auto *curve = new OrvaneCurve; // owned by the scene
    for (const Vector &place : places)
        curve->AppendPoint(CurvePoint(place));
    curve->SetClosed(closed);
    orvane::Kernel()->Scene()->AddCurve(curve);
    return curve;
}

QVector<Vector> circle(float radius, float height, int points)
{
    QVector<Vector> places;
    for (int i = 0; i < points; ++i) {
        const float angle = 6.2831853f * float(i) / float(points);
        places.append(Vector(radius * std::cos(angle), radius * std::sin(angle), height));
    }
    return places;
}
