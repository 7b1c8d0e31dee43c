// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/curvepoint.h>
#include <orvane/operations/nodeoperation.h>

#include <QVector>

namespace orvane {

class OrvaneCurve;

//! Gives a curve of the scene other points.
class ORVANE_EXPORT EditCurveOperation : public NodeOperation
{
public:
    //! closed: whether the last of the points is a closing point.
    explicit EditCurveOperation(const OrvaneCurve *curve = nullptr,
                                const QVector<CurvePoint> &points = {}, bool closed = false);

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    bool Exchange(Node &node, bool first) override;

private:
    QVector<CurvePoint> m_points; // what the curve is to have, or had
    bool m_closed;
};

} // namespace orvane
