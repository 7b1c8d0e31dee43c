// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/matrix.h>
#include <orvane/operations/curvepoints.h>
#include <orvane/operations/nodeoperation.h>

#include <QCoreApplication>

namespace orvane {

//! Moves, turns or scales a geometry of the scene. The curves that lie on it go with it.
class ORVANE_EXPORT TransformOperation : public NodeOperation
{
    Q_DECLARE_TR_FUNCTIONS(TransformOperation)

public:
    //! A world matrix without an inverse, or one that leads to places that are not finite, makes
    //! an operation that answers false.
    explicit TransformOperation(const Geometry *geometry = nullptr,
                                const Matrix &worldMatrix = Matrix());

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

protected:
    bool Exchange(Node &node, bool first) override;

private:
    Matrix m_matrix;                 // where the geometry is to stand, or stood
    QVector<PointsOfCurve> m_curves; // their points are to be these, or were; empty at first
};

} // namespace orvane
