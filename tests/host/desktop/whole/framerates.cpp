// SPDX-License-Identifier: MIT
// Frames per second while orbiting around meshes of three sizes with 200 curves. No test: it
// prints.
#include "host/desktop/viewport/viewportwidget.h"

#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QApplication>
#include <QElapsedTimer>

#include <cmath>
#include <ctime>
#include <iostream>

namespace {

const int Frames = 20;
const int Curves = 200;
const int PointsOfACurve = 100;

void addCurves()
{
    for (int i = 0; i < Curves; ++i) {
        auto *curve = new orvane::OrvaneCurve; // owned by the scene
        const float height = 1.9f * float(i) / Curves - 0.95f;
        const float radius = std::sqrt(1.0f - height * height);
        for (int k = 0; k < PointsOfACurve; ++k) {
            const float angle = 6.2831853f * float(k) / PointsOfACurve;
            curve->AppendPoint(orvane::CurvePoint(
                orvane::Vector(radius * std::cos(angle), radius * std::sin(angle), height)));
        }
        curve->SetClosed(true);
        orvane::Kernel()->Scene()->AddCurve(curve);
    }
}

void measure(int rings, int segments)
{
    orvane::Kernel()->NewScene();
    orvane::SubdivisionLevel *mesh = sphere(rings, segments);
    const int triangles = mesh->FaceCount();
    addToScene(mesh);
    addCurves();
    orvane::ViewportWidget view;
    view.resize(1280, 720);
    view.show();
    view.FrameAll();
    view.grabFramebuffer();
    const int uploads = orvane::ViewportWidget::UploadCount();
    QElapsedTimer wall;
    wall.start();
    const std::clock_t processor = std::clock();
    for (int i = 0; i < Frames; ++i) {
        view.Camera().Orbit(0.05, 0.01);
        view.grabFramebuffer();
    }
    const double seconds = double(wall.nsecsElapsed()) / 1e9;
    const double worked = double(std::clock() - processor) / CLOCKS_PER_SEC;
    std::cout << triangles << " triangles, " << Curves << " curves: " << Frames / seconds
              << " frames/s, " << 1000.0 * seconds / Frames << " ms a frame, processor "
              << 1000.0 * worked / Frames << " ms a frame, uploads "
              << orvane::ViewportWidget::UploadCount() - uploads << std::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    measure(56, 55);
    measure(189, 187);
    measure(708, 707);
    orvane::Kernel()->NewScene();
    return 0;
}
