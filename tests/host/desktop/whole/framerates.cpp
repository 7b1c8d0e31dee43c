// SPDX-License-Identifier: MIT
// Frames per second while orbiting around meshes of three sizes with 200 curves, and what the parts
// of a frame take. No test: it prints.
#include "host/desktop/viewport/viewportwidget.h"

#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QSurfaceFormat>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iostream>
#include <limits>

namespace {

const int Frames = 20;
const int FramesOfAPart = 8;
const QSize ViewSize(1280, 720);
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

void makeScene(int rings, int segments)
{
    orvane::Kernel()->NewScene();
    addToScene(sphere(rings, segments));
    addCurves();
}

double processorTime()
{
    return 1000.0 * double(std::clock()) / CLOCKS_PER_SEC;
}

void measureFrames()
{
    orvane::ViewportWidget view;
    view.resize(ViewSize);
    view.show();
    view.FrameAll();
    view.grabFramebuffer();
    const int uploads = orvane::ViewportWidget::UploadCount();
    QElapsedTimer wall;
    wall.start();
    const double start = processorTime();
    for (int i = 0; i < Frames; ++i) {
        view.Camera().Orbit(0.05, 0.01);
        view.grabFramebuffer();
    }
    const double milliseconds = double(wall.nsecsElapsed()) / 1e6;
    std::cout << "  " << 1000.0 * Frames / milliseconds << " frames/s, " << milliseconds / Frames
              << " ms a frame, processor " << (processorTime() - start) / Frames
              << " ms a frame, uploads " << orvane::ViewportWidget::UploadCount() - uploads
              << std::endl;
}

// What the cheapest of some frames takes, in milliseconds of processor time.
double frameCost(orvane::ViewportWidget &view, bool mesh, bool curves,
                 const orvane::ViewOptions &options)
{
    const orvane::Scene &scene = *orvane::Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        if (auto *curve = dynamic_cast<orvane::OrvaneCurve *>(scene.NodeAt(i)))
            curve->SetHidden(!curves);
    }
    for (orvane::Geometry *geometry : scene.Geometries())
        geometry->SetHidden(!mesh);
    view.SetOptions(options);
    view.grabFramebuffer(); // what this needs is on the card now
    double least = std::numeric_limits<double>::max();
    for (int i = 0; i < FramesOfAPart; ++i) {
        view.Camera().Orbit(0.05, 0.01);
        const double start = processorTime();
        view.grabFramebuffer();
        least = std::min(least, processorTime() - start);
    }
    return least;
}

// Each part is the difference of two frames, one with it and one without.
void measureParts(int samples)
{
    orvane::ViewportWidget view;
    QSurfaceFormat format = view.format();
    format.setSamples(samples);
    view.setFormat(format);
    view.resize(ViewSize);
    view.show();
    view.FrameAll();
    orvane::ViewOptions bare;
    bare.showGrid = false;
    bare.showGizmo = false;
    orvane::ViewOptions wires = bare;
    wires.wireframe = true;
    const double empty = frameCost(view, false, false, bare);
    const double ground = frameCost(view, false, false, orvane::ViewOptions());
    const double surface = frameCost(view, true, false, bare);
    const double wire = frameCost(view, true, false, wires);
    const double curves = frameCost(view, false, true, bare);
    const double whole = frameCost(view, true, true, orvane::ViewOptions());
    std::cout << "  " << samples << " samples, processor ms: background and reading back " << empty
              << ", grid and axes " << ground - empty << ", surface " << surface - empty
              << ", wireframe " << wire - surface << ", curves " << curves - empty
              << "; all but the wireframe " << whole << std::endl;
}

void measure(int rings, int segments)
{
    makeScene(rings, segments);
    std::cout << orvane::Kernel()->Scene()->Geometries().first()->CurrentLevel()->FaceCount()
              << " triangles, " << Curves << " curves:" << std::endl;
    measureFrames();
    measureParts(0);
    measureParts(4);
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
