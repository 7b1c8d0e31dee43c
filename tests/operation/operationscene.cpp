// SPDX-License-Identifier: MIT
#include "tests/operation/operationscene.h"

#include "graph/nodestore.h"
#include "operation/manualretopooperation.h"
#include "tests/operation/operationstate.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::OrvaneCurve;
using orvane::Vector;

OperationScene::OperationScene(const QString &answer) : dialogs(answer)
{
    NodeStore::instance().beginRun();
}

OperationScene::~OperationScene()
{
    NodeStore::instance().beginRun();
}

std::unique_ptr<ManualRetopoOperation>
OperationScene::operationOn(const QList<OrvaneCurve *> &curves, float overrun)
{
    return std::make_unique<ManualRetopoOperation>(curves, 5, 0.1f, 0.05f, overrun, false);
}

QList<OrvaneCurve *> OperationScene::drawCell(Sheet &sheet, const Vector &corner, float side)
{
    const float over = 0.25f * side;
    const Vector x(1, 0, 0);
    const Vector y(0, 1, 0);
    return {sheet.straight(corner - x * over, corner + x * (side + over)),
            sheet.straight(corner + y * side - x * over, corner + y * side + x * (side + over)),
            sheet.straight(corner - y * over, corner + y * (side + over)),
            sheet.straight(corner + x * side - y * over, corner + x * side + y * (side + over))};
}

QVector<orvane::Node *> OperationScene::sceneNodes()
{
    QVector<orvane::Node *> nodes;
    const orvane::Scene *scene = orvane::Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i)
        nodes.append(scene->NodeAt(i));
    return nodes;
}

Created::Created(orvane::Geometry *geometry)
    : geometryID(geometry->ID()),
      placementID(geometry->Placement()->ID()),
      meshID(geometry->CurrentLevel()->ID()),
      bytes(bytesOf(geometry))
{}

std::vector<Created> createdGeometries(int sources)
{
    const QVector<orvane::Geometry *> geometries = orvane::Kernel()->Scene()->Geometries();
    std::vector<Created> created;
    for (orvane::Geometry *geometry : geometries.mid(sources))
        created.emplace_back(geometry);
    return created;
}
