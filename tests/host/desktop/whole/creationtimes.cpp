// SPDX-License-Identifier: MIT
// From the command to the picture: a net of 200 strokes of 150 points on the bunny, created, taken
// back and created again in the whole window. No test: it prints.
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/mainwindow.h"
#include "host/files/meshfile.h"
#include "tests/support/models.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/pluginloader.h>
#include <orvane/kernel/scene.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <functional>
#include <iostream>
#include <vector>

using orvane::Kernel;
using orvane::Vector;

namespace {

const int Rounds = 7;
const int Patience = 5000; // milliseconds
const int Settling = 300;  // milliseconds
const int StrokesEachWay = 100;
const int PointsOfAStroke = 150;
const float PatchSize = 0.2f; // fraction of the diagonal of the mesh

struct Times
{
    std::vector<double> done;  // milliseconds of processor time, until the call is back
    std::vector<double> shown; // until the next frame is on the screen
};

double processorTime()
{
    return 1000.0 * double(std::clock()) / CLOCKS_PER_SEC;
}

double least(const std::vector<double> &values)
{
    return *std::min_element(values.begin(), values.end());
}

// On the flank of the mesh, where a ray along z meets it first; across and along are fractions of
// the patch.
orvane::CurvePoint onFlank(const orvane::Mesh &mesh, float across, float along)
{
    const orvane::AxisAlignedBoundingBox &box = mesh.Bounds();
    const float size = PatchSize * box.Diagonal();
    const Vector origin =
        box.Center() + Vector((across - 0.5f) * size, (along - 0.5f) * size, box.Diagonal());
    const orvane::SurfacePoint point = mesh.Locator().Pick(origin, Vector(0, 0, -1));
    return point.Mesh() ? orvane::CurvePoint(point) : orvane::CurvePoint(origin);
}

void addStrokes(const orvane::Mesh &mesh)
{
    for (int i = 0; i < 2 * StrokesEachWay; ++i) {
        auto *curve = new orvane::OrvaneCurve; // owned by the scene
        curve->SetName(QStringLiteral("stroke %1").arg(i + 1));
        const float which = (float(i / 2) + 0.4f) / StrokesEachWay;
        for (int k = 0; k < PointsOfAStroke; ++k) {
            const float along = float(k) / (PointsOfAStroke - 1);
            curve->AppendPoint(i % 2 == 0 ? onFlank(mesh, which, along)
                                          : onFlank(mesh, along, which));
        }
        Kernel()->Scene()->AddCurve(curve);
    }
}

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void note(Times &times, orvane::ViewportWidget &view, const std::function<void()> &act)
{
    QEventLoop loop;
    QObject::connect(&view, &orvane::ViewportWidget::frameRendered, &loop, &QEventLoop::quit);
    QTimer::singleShot(Patience, &loop, [&loop] { loop.exit(1); });
    const double start = processorTime();
    act();
    times.done.push_back(processorTime() - start);
    if (loop.exec() != 0)
        std::cout << "no frame came" << std::endl;
    times.shown.push_back(processorTime() - start);
    waitFor(Settling);
}

void print(const char *what, const Times &times)
{
    std::cout << what << ": done after " << least(times.done) << " ms, shown after "
              << least(times.shown) << " ms of processor time" << std::endl;
}

void measure(orvane::MainWindow &window)
{
    auto &view = *window.findChild<orvane::ViewportWidget *>();
    Times nothing;
    Times creation;
    Times undo;
    Times redo;
    for (int i = 0; i < Rounds; ++i) {
        note(nothing, view, [&view] { view.update(); });
        note(creation, view, [] {
            Kernel()->CommandAttribute().SetValue(QStringLiteral("manualretopo 5 0.3 0.05 35 0"));
        });
        note(undo, view, [] { Kernel()->Undo(); });
        note(redo, view, [] { Kernel()->Redo(); });
        if (i + 1 < Rounds)
            note(undo, view, [] { Kernel()->Undo(); });
    }
    const double start = processorTime();
    for (int i = 0; i < Rounds; ++i)
        window.Refresh();
    std::cout << "panels looked at without a change: " << (processorTime() - start) / Rounds
              << " ms of processor time" << std::endl;
    const orvane::Geometry *made = Kernel()->Scene()->ActiveGeometry();
    std::cout << (made ? made->CurrentLevel()->Polygons().Count() : 0) << " faces made"
              << std::endl;
    print("a frame alone", nothing);
    print("creation", creation);
    print("undo", undo);
    print("redo", redo);
}

} // namespace

int main(int argc, char *argv[])
{
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QDir::setCurrent(orvane::resourceFolder());
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    QString error;
    orvane::Geometry *bunny = orvane::readMesh(modelFile(QStringLiteral("bunny.obj")), &error);
    if (!bunny) {
        std::cerr << qPrintable(error) << std::endl;
        return 1;
    }
    orvane::PluginLoader plugins;
    orvane::MainWindow window(&settings, &plugins);
    plugins.AddFolder(QStringLiteral(QUILLMESH_PLUGIN_DIR));
    plugins.Load();
    plugins.Initialise();
    Kernel()->Scene()->AddGeometry(bunny);
    addStrokes(*bunny->CurrentLevel());
    window.show();
    window.Refresh();
    window.findChild<orvane::ViewportWidget *>()->FrameAll();
    waitFor(Patience);
    measure(window);
    Kernel()->NewScene();
    return 0;
}
