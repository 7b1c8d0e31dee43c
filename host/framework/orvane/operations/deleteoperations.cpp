// SPDX-License-Identifier: MIT
#include <orvane/operations/deleteoperations.h>

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

namespace orvane {

DeleteGeometryOperation::DeleteGeometryOperation(const QVector<Geometry *> &geometries)
    : PresenceOperation(Geometry::StaticClass())
{
    for (const Geometry *geometry : geometries)
        TakeOutFirst(geometry);
}

const ClassDesc *DeleteGeometryOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *DeleteGeometryOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "DeleteGeometryOperation",
                                QT_TRANSLATE_NOOP("DeleteGeometryOperation", "Delete Geometry"),
                                createInstances<DeleteGeometryOperation>, 0, 0);
    return &desc;
}

DeleteCurveOperation::DeleteCurveOperation(const QVector<OrvaneCurve *> &curves)
    : PresenceOperation(OrvaneCurve::StaticClass())
{
    for (const OrvaneCurve *curve : curves)
        TakeOutFirst(curve);
}

const ClassDesc *DeleteCurveOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *DeleteCurveOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "DeleteCurveOperation",
                                QT_TRANSLATE_NOOP("DeleteCurveOperation", "Delete Curve"),
                                createInstances<DeleteCurveOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered[] = {DeleteGeometryOperation::StaticClass(),
                                       DeleteCurveOperation::StaticClass()};
} // namespace

} // namespace orvane
