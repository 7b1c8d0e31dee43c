// SPDX-License-Identifier: MIT
#include "host/desktop/tools/curvestep.h"

#include "host/desktop/tools/scenecurves.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/editcurveoperation.h>
#include <orvane/operations/selectoperation.h>
#include <orvane/operations/showoperation.h>

#include <QSet>

#include <algorithm>
#include <memory>

namespace orvane {

namespace {

QString freeCurveName()
{
    QSet<QString> taken;
    for (const OrvaneCurve *curve : sceneCurves())
        taken.insert(curve->Name());
    QString name;
    for (int number = 1; name.isEmpty() || taken.contains(name); ++number)
        name = QStringLiteral("curve %1").arg(number);
    return name;
}

QVector<Node *> selectedGeometries()
{
    QVector<Node *> nodes;
    for (Geometry *geometry : Kernel()->Scene()->Geometries()) {
        if (geometry->Selected())
            nodes.append(geometry);
    }
    return nodes;
}

} // namespace

bool CurveStep::Add(const CurveShape &shape, bool selected)
{
    if (shape.points.size() < 2)
        return false;
    auto curve = std::make_unique<OrvaneCurve>();
    curve->SetName(freeCurveName());
    curve->SetPoints(shape.points);
    curve->SetClosed(shape.closed);
    curve->SetSelected(selected);
    AddCurveOperation operation(curve.release()); // owned by the operation, then by the scene
    return run(&operation, false);
}

bool CurveStep::Edit(const OrvaneCurve &curve, const CurveShape &shape)
{
    EditCurveOperation operation(&curve, shape.points, shape.closed);
    return run(&operation, false);
}

bool CurveStep::Delete(const QVector<OrvaneCurve *> &curves)
{
    if (curves.isEmpty())
        return false;
    DeleteCurveOperation operation(curves);
    return run(&operation, false);
}

bool CurveStep::Select(const QVector<OrvaneCurve *> &curves)
{
    if (sceneCurvesThat([](const OrvaneCurve &curve) { return curve.Selected(); }) == curves)
        return false;
    QVector<Node *> nodes = selectedGeometries();
    std::copy(curves.cbegin(), curves.cend(), std::back_inserter(nodes));
    SelectOperation operation(nodes);
    return run(&operation, true); // a selection that nobody asked for would not be kept
}

bool CurveStep::Show(const QVector<OrvaneCurve *> &curves, bool show)
{
    if (curves.isEmpty())
        return false;
    ShowOperation operation({curves.cbegin(), curves.cend()}, show);
    return run(&operation, false);
}

bool CurveStep::run(Operation *operation, bool interactive)
{
    if (!Kernel()->DoOperation(operation, interactive, m_begun))
        return false;
    if (m_title)
        Kernel()->Undos().SetTitle(QString::fromUtf8(m_title));
    m_begun = true;
    return true;
}

} // namespace orvane
