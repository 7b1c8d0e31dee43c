// SPDX-License-Identifier: MIT
// Writes pictures of a scene file as the view shows it. usage: viewpictures SCENE FOLDER
#include "host/desktop/viewport/viewportwidget.h"
#include "host/files/scenefile.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QApplication>
#include <QDir>

#include <cstdio>

using namespace orvane;

namespace {

void save(ViewportWidget &view, const QString &folder, const QString &name)
{
    const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
    if (!view.grabFramebuffer().save(path))
        std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
}

void hideNewMeshes(bool hide)
{
    const Scene &scene = *Kernel()->Scene();
    const QVector<Geometry *> geometries = scene.Geometries();
    for (Geometry *geometry : geometries) {
        if (geometry != scene.DrawingSurface())
            geometry->SetHidden(hide);
    }
}

void takePictures(ViewportWidget &view, const QString &folder)
{
    view.Look(StandardView::Front);
    view.Camera().Orbit(0.5, 0.15);
    view.FrameAll();
    hideNewMeshes(true);
    save(view, folder, QStringLiteral("curves"));
    view.SetShading(Shading::Flat);
    save(view, folder, QStringLiteral("flat"));
    view.SetShading(Shading::Matcap);
    save(view, folder, QStringLiteral("matcap"));
    view.SetShading(Shading::Smooth);
    view.SetWireframe(true);
    save(view, folder, QStringLiteral("wireframe"));
    view.SetWireframe(false);
    view.SetXRay(true);
    save(view, folder, QStringLiteral("xray"));
    view.SetXRay(false);
    view.Camera().Zoom(0.35);
    view.SetCurvePoints(true);
    save(view, folder, QStringLiteral("near"));
    view.SetCurvePoints(false);
    hideNewMeshes(false);
    save(view, folder, QStringLiteral("newmeshnear"));
    view.FrameAll();
    save(view, folder, QStringLiteral("newmesh"));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: viewpictures SCENE FOLDER\n");
        return 2;
    }
    SceneContents contents;
    QString error;
    if (!readScene(arguments[1], &contents, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 3;
    }
    ViewportWidget view;
    view.resize(1280, 720);
    view.show();
    openScene(contents);
    takePictures(view, arguments[2]);
    return 0;
}
