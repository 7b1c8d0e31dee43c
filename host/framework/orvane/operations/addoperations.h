// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/presenceoperation.h>

namespace orvane {

class Geometry;
class OrvaneCurve;

//! Adds a new geometry at the end of the scene and makes it the active one.
class ORVANE_EXPORT AddGeometryOperation : public PresenceOperation
{
public:
    //! The geometry is of no scene yet; the operation owns it until it is executed.
    explicit AddGeometryOperation(Geometry *geometry = nullptr);

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

//! Adds a new curve at the end of the scene.
class ORVANE_EXPORT AddCurveOperation : public PresenceOperation
{
public:
    //! The curve is of no scene yet; the operation owns it until it is executed.
    explicit AddCurveOperation(OrvaneCurve *curve = nullptr);

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

} // namespace orvane
