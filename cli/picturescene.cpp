// SPDX-License-Identifier: MIT
#include "cli/picturescene.h"

#include "cli/goodangle.h"
#include "cli/legend.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>

#include <algorithm>

using orvane::Vector;

namespace {

void addMesh(QVector<Surface> &surfaces, const orvane::Mesh *mesh, SurfaceLook look)
{
    if (!mesh)
        return;
    const Surface surface = surfaceOf(*mesh, look);
    if (!surface.triangles.isEmpty())
        surfaces.append(surface);
}

QVector<QVector<Vector>> strokesOf(const orvane::OrvaneCurve &curve)
{
    QVector<QVector<Vector>> strokes;
    bool isOpen = false;
    for (const orvane::CurvePoint &point : curve.Points()) {
        if (!isDrawable(point.position)) {
            isOpen = false;
            continue;
        }
        if (!isOpen)
            strokes.append(QVector<Vector>());
        isOpen = true;
        strokes.last().append(point.position);
    }
    return strokes;
}

} // namespace

PictureScene::PictureScene(const PictureContent &content)
{
    addMesh(source, content.source, SurfaceLook::Smooth);
    for (const orvane::Mesh *mesh : content.meshes)
        addMesh(meshes, mesh, SurfaceLook::Facets);
    for (const orvane::OrvaneCurve *curve : content.curves) {
        if (!curve || curve->IsHidden())
            continue;
        const QVector<QVector<Vector>> parts = strokesOf(*curve);
        strokes += parts;
        curveCount += parts.isEmpty() ? 0 : 1;
    }
    std::copy_if(content.crossings.begin(), content.crossings.end(), std::back_inserter(crossings),
                 isDrawable);
}

bool PictureScene::isEmpty() const
{
    return source.isEmpty() && meshes.isEmpty() && strokes.isEmpty() && crossings.isEmpty();
}

QVector<Vector> PictureScene::pointsToFit() const
{
    QVector<Vector> points;
    for (const QVector<Surface> *surfaces : {&source, &meshes}) {
        for (const Surface &surface : *surfaces) {
            for (int vertex : surface.polygons.corners)
                points.append(surface.positions[vertex]);
        }
    }
    if (!points.isEmpty())
        return points;
    for (const QVector<Vector> &stroke : strokes)
        points += stroke;
    return points + crossings;
}

Camera goodCamera(const PictureScene &scene, const QSize &size)
{
    const Vector angle = scene.meshes.isEmpty() ? goodAngle(scene.source, {})
                                                : goodAngle(scene.meshes, scene.source);
    return Camera(angle, scene.pointsToFit(), frameBesideLegend(size));
}
