// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/presenceoperation.h>

namespace orvane {

class Geometry;
class OrvaneCurve;

//! Deletes geometries. The curves on them stay, bound to nothing until the geometries come back.
class ORVANE_EXPORT DeleteGeometryOperation : public PresenceOperation
{
public:
    explicit DeleteGeometryOperation(const QVector<Geometry *> &geometries = {});

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

//! Deletes curves.
class ORVANE_EXPORT DeleteCurveOperation : public PresenceOperation
{
public:
    explicit DeleteCurveOperation(const QVector<OrvaneCurve *> &curves = {});

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

} // namespace orvane
