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

template <typename Value>
void setOption(ViewportWidget &view, Value ViewOptions::*option, Value value)
{
    ViewOptions options = view.Options();
    options.*option = value;
    view.SetOptions(options);
}

void takePictures(ViewportWidget &view, const QString &folder)
{
    view.Look(StandardView::Front);
    view.Camera().Orbit(0.5, 0.15);
    view.FrameAll();
    hideNewMeshes(true);
    save(view, folder, QStringLiteral("curves"));
    setOption(view, &ViewOptions::shading, Shading::Flat);
    save(view, folder, QStringLiteral("flat"));
    setOption(view, &ViewOptions::shading, Shading::Matcap);
    save(view, folder, QStringLiteral("matcap"));
    setOption(view, &ViewOptions::shading, Shading::Smooth);
    setOption(view, &ViewOptions::wireframe, true);
    save(view, folder, QStringLiteral("wireframe"));
    setOption(view, &ViewOptions::wireframe, false);
    setOption(view, &ViewOptions::xRay, true);
    save(view, folder, QStringLiteral("xray"));
    setOption(view, &ViewOptions::xRay, false);
    view.Camera().Zoom(0.35);
    setOption(view, &ViewOptions::curvePoints, true);
    save(view, folder, QStringLiteral("near"));
    setOption(view, &ViewOptions::curvePoints, false);
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
