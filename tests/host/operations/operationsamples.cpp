// SPDX-License-Identifier: MIT
#include "tests/host/operations/operationsamples.h"

#include "tests/support/shapes.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/drawonoperation.h>
#include <orvane/operations/editcurveoperation.h>
#include <orvane/operations/projectoperation.h>
#include <orvane/operations/relaxoperation.h>
#include <orvane/operations/renameoperation.h>
#include <orvane/operations/selectoperation.h>
#include <orvane/operations/showoperation.h>
#include <orvane/operations/transformoperation.h>

using namespace orvane;

const char *const OperationClasses[12] = {
    "AddGeometryOperation", "AddCurveOperation",  "DeleteGeometryOperation", "DeleteCurveOperation",
    "RenameOperation",      "TransformOperation", "SelectOperation",         "ShowOperation",
    "EditCurveOperation",   "RelaxOperation",     "ProjectOperation",        "DrawOnOperation"};

Geometry *OperationSamples::newGeometry()
{
    auto *geometry = new Geometry;
    geometry->SetName(QStringLiteral("New"));
    geometry->AddLevel(singleTriangle());
    return geometry;
}

OrvaneCurve *OperationSamples::newCurve()
{
    auto *curve = new OrvaneCurve;
    curve->SetName(QStringLiteral("New"));
    curve->SetPoints({CurvePoint(SurfacePoint(*quad()->CurrentLevel(), 0, 0.25f, 0.5f)),
                      CurvePoint(Vector(4, 5, 6))});
    return curve;
}

std::unique_ptr<Operation> OperationSamples::makeOperation()
{
    const ClassDesc *desc = ClassDesc::ByName(QString::fromUtf8(GetParam()));
    if (desc == AddGeometryOperation::StaticClass())
        return std::make_unique<AddGeometryOperation>(newGeometry());
    if (desc == AddCurveOperation::StaticClass())
        return std::make_unique<AddCurveOperation>(newCurve());
    if (desc == DeleteGeometryOperation::StaticClass())
        return std::make_unique<DeleteGeometryOperation>(
            QVector<Geometry *>{tetrahedron(), quad()});
    if (desc == DeleteCurveOperation::StaticClass())
        return std::make_unique<DeleteCurveOperation>(QVector<OrvaneCurve *>{loop(), net()});
    if (desc == RenameOperation::StaticClass())
        return std::make_unique<RenameOperation>(net(), QStringLiteral("Netz"));
    if (desc == TransformOperation::StaticClass())
        return std::make_unique<TransformOperation>(quad(), Matrix::Translation({1, 2, 3}));
    if (desc == SelectOperation::StaticClass())
        return std::make_unique<SelectOperation>(QVector<Node *>{triangle(), loop(), net()});
    if (desc == ShowOperation::StaticClass())
        return std::make_unique<ShowOperation>(QVector<Node *>{quad(), loose(), loop()}, false);
    if (desc == EditCurveOperation::StaticClass())
        return std::make_unique<EditCurveOperation>(loop(), net()->Points(), false);
    if (desc == RelaxOperation::StaticClass())
        return std::make_unique<RelaxOperation>(quad(), triangle(), 3, 0.5f);
    if (desc == ProjectOperation::StaticClass())
        return std::make_unique<ProjectOperation>(quad(), triangle());
    if (desc == DrawOnOperation::StaticClass())
        return std::make_unique<DrawOnOperation>(quad());
    return nullptr;
}
