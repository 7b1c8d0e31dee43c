// SPDX-License-Identifier: MIT
#include "tests/host/operations/historysteps.h"

#include "operation/manualretopooperation.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/drawonoperation.h>
#include <orvane/operations/editcurveoperation.h>
#include <orvane/operations/renameoperation.h>
#include <orvane/operations/selectoperation.h>
#include <orvane/operations/showoperation.h>
#include <orvane/operations/transformoperation.h>

#include <algorithm>
#include <cmath>

using namespace orvane;

namespace {

const int FewestGeometries = 2; // that deleting leaves
const int FewestCurves = 12;

template <typename T>
QVector<T *> nodesOf()
{
    QVector<T *> nodes;
    const Scene *scene = Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i) {
        if (auto *node = dynamic_cast<T *>(scene->NodeAt(i)))
            nodes.append(node);
    }
    return nodes;
}

} // namespace

const char *HistorySteps::kindName(int kind)
{
    static const char *const names[KindCount] = {
        "add geometry", "add curve", "delete geometry", "delete curve", "rename",  "transform",
        "select",       "show",      "edit curve",      "select all",   "draw on", "manual retopo"};
    return names[kind];
}

void HistorySteps::fillScene()
{
    Sheet sheet(12, randomPlacement(m_random));
    sheet.grid(3, 3, 2.0f);
    sheet.circle({6, 6, 0}, 2.5f, 24);
    addToScene(sphere(4, 7), QStringLiteral("Ball"), randomPlacement(m_random));
    addToScene(gridOfQuads(4, 4), QStringLiteral("Tile"), randomPlacement(m_random));
    Kernel()->Scene()->SetActiveGeometry(sheet.geometry());
    Kernel()->Scene()->SetDrawingSurface(Kernel()->Scene()->Geometries().last());
}

std::unique_ptr<Operation> HistorySteps::make(int kind)
{
    using Maker = OperationPointer (HistorySteps::*)();
    static const Maker makers[KindCount] = {
        &HistorySteps::addGeometry, &HistorySteps::addCurve, &HistorySteps::deleteGeometry,
        &HistorySteps::deleteCurve, &HistorySteps::rename,   &HistorySteps::transform,
        &HistorySteps::select,      &HistorySteps::show,     &HistorySteps::editCurve,
        &HistorySteps::selectAll,   &HistorySteps::drawOn,   &HistorySteps::retopologise};
    const Maker maker = makers[kind];
    return (this->*maker)();
}

Geometry *HistorySteps::newGeometry()
{
    const int size = 2 + below(5);
    SubdivisionLevel *const shapes[] = {gridOfQuads(size, size), gridOfTriangles(size, 2),
                                        sphere(2 + below(3), 5), cube()};
    const int chosen = below(4);
    auto *geometry = new Geometry;
    geometry->SetName(QStringLiteral("New %1").arg(below(100)));
    for (int i = 0; i < 4; ++i) {
        if (i == chosen)
            geometry->AddLevel(shapes[i]);
        else
            delete shapes[i];
    }
    geometry->Placement()->SetWorldMatrix(randomPlacement(m_random));
    return geometry;
}

// Across a row or a column of a square grid, so that curves cross; elsewhere a zigzag.
OrvaneCurve *HistorySteps::newCurve()
{
    const QVector<Geometry *> geometries = nodesOf<Geometry>();
    const Geometry *geometry = geometries[below(geometries.size())];
    const Mesh &mesh = *geometry->CurrentLevel();
    const int width = qMax(1, int(std::sqrt(float(mesh.FaceCount()))));
    const int line = below(width);
    const bool isRow = below(2) == 0;
    const float along = randomBetween(m_random, 0.2f, 0.8f);
    auto *curve = new OrvaneCurve;
    curve->SetName(QStringLiteral("Stroke"));
    for (int i = 0; i < width; ++i) {
        const int face = isRow ? line * width + i : i * width + line;
        curve->AppendPoint(
            CurvePoint(SurfacePoint(mesh, face, isRow ? 0.3f : along, isRow ? along : 0.3f)));
    }
    if (width > 2 && below(6) == 0) {
        curve->AppendPoint(CurvePoint(curve->ClosingPosition()));
        curve->SetClosed(true);
    }
    return curve;
}

QVector<Node *> HistorySteps::someNodes()
{
    QVector<Node *> nodes;
    for (Node *node : nodesOf<Node>()) {
        if (below(3) == 0)
            nodes.append(node);
    }
    return nodes;
}

std::unique_ptr<Operation> HistorySteps::addGeometry()
{
    return std::make_unique<AddGeometryOperation>(newGeometry());
}

std::unique_ptr<Operation> HistorySteps::addCurve()
{
    return std::make_unique<AddCurveOperation>(newCurve());
}

std::unique_ptr<Operation> HistorySteps::deleteGeometry()
{
    QVector<Geometry *> geometries = nodesOf<Geometry>();
    std::shuffle(geometries.begin(), geometries.end(), m_random);
    const int most = geometries.size() - FewestGeometries;
    if (most < 1)
        return nullptr;
    return std::make_unique<DeleteGeometryOperation>(geometries.mid(0, 1 + below(qMin(most, 3))));
}

std::unique_ptr<Operation> HistorySteps::deleteCurve()
{
    QVector<OrvaneCurve *> curves = nodesOf<OrvaneCurve>();
    std::shuffle(curves.begin(), curves.end(), m_random);
    const int most = curves.size() - FewestCurves;
    if (most < 1)
        return nullptr;
    return std::make_unique<DeleteCurveOperation>(curves.mid(0, 1 + below(qMin(most, 2))));
}

std::unique_ptr<Operation> HistorySteps::rename()
{
    const QVector<Node *> nodes = nodesOf<Node>();
    return std::make_unique<RenameOperation>(nodes[below(nodes.size())],
                                             QStringLiteral("Name %1").arg(below(4)));
}

std::unique_ptr<Operation> HistorySteps::transform()
{
    const QVector<Geometry *> geometries = nodesOf<Geometry>();
    const Matrix flat = Matrix::Scaling({1, 1, 0});
    return std::make_unique<TransformOperation>(geometries[below(geometries.size())],
                                                below(10) == 0 ? flat : randomPlacement(m_random));
}

std::unique_ptr<Operation> HistorySteps::select()
{
    return std::make_unique<SelectOperation>(someNodes());
}

std::unique_ptr<Operation> HistorySteps::show()
{
    return std::make_unique<ShowOperation>(someNodes(), below(4) != 0);
}

std::unique_ptr<Operation> HistorySteps::editCurve()
{
    const QVector<OrvaneCurve *> curves = nodesOf<OrvaneCurve>();
    const OrvaneCurve *curve = curves[below(curves.size())];
    QVector<CurvePoint> points = curve->Points();
    for (CurvePoint &point : points) {
        const Vector offset = randomVector(m_random, 0.005f);
        point.position += offset;
        point.surfacePoint.Shift(offset);
    }
    if (points.size() > 6)
        points.remove(below(points.size()));
    return std::make_unique<EditCurveOperation>(curve, points, curve->Closed());
}

std::unique_ptr<Operation> HistorySteps::selectAll()
{
    return std::make_unique<SelectAllOperation>(below(2) == 0);
}

std::unique_ptr<Operation> HistorySteps::drawOn()
{
    const QVector<Geometry *> geometries = nodesOf<Geometry>();
    return std::make_unique<DrawOnOperation>(geometries[below(geometries.size())]);
}

std::unique_ptr<Operation> HistorySteps::retopologise()
{
    QList<OrvaneCurve *> curves;
    for (OrvaneCurve *curve : nodesOf<OrvaneCurve>()) {
        if (curve->IsUsable() && below(8) != 0)
            curves.append(curve);
    }
    return std::make_unique<ManualRetopoOperation>(curves, 5, 0.1f, 0.3f, 0.1f, below(2) == 0);
}
