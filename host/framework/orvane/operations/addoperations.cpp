// SPDX-License-Identifier: MIT
#include <orvane/operations/addoperations.h>

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

namespace orvane {

AddGeometryOperation::AddGeometryOperation(Geometry *geometry)
    : PresenceOperation(Geometry::StaticClass())
{
    BringInFirst(geometry);
}

const ClassDesc *AddGeometryOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *AddGeometryOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "AddGeometryOperation",
                                QT_TRANSLATE_NOOP("AddGeometryOperation", "Add Geometry"),
                                createInstances<AddGeometryOperation>, 0, 0);
    return &desc;
}

AddCurveOperation::AddCurveOperation(OrvaneCurve *curve)
    : PresenceOperation(OrvaneCurve::StaticClass())
{
    BringInFirst(curve);
}

const ClassDesc *AddCurveOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *AddCurveOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "AddCurveOperation",
                                QT_TRANSLATE_NOOP("AddCurveOperation", "Add Curve"),
                                createInstances<AddCurveOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered[] = {AddGeometryOperation::StaticClass(),
                                       AddCurveOperation::StaticClass()};
} // namespace

} // namespace orvane
