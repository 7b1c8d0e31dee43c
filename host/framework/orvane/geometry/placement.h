// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>
#include <orvane/math/matrix.h>

namespace orvane {

//! Where a geometry stands in the world: its companion node.
class ORVANE_EXPORT Placement : public Node
{
public:
    bool IsIdentity() const { return m_identity; }
    const Matrix &WorldMatrix() const { return m_matrix; }
    //! A matrix without an inverse is logged and refused, the old one stays.
    bool SetWorldMatrix(const Matrix &matrix);

    Vector ToWorld(const Vector &p) const { return m_identity ? p : m_matrix.Transform(p, 1.0f); }
    Vector ToLocal(const Vector &p) const { return m_identity ? p : m_inverse.Transform(p, 1.0f); }
    //! Normals stay square to the surface under any scaling; of length 1, zero stays zero.
    Vector NormalToWorld(const Vector &normal) const;
    Vector NormalToLocal(const Vector &normal) const;

    void Serialize(Stream &stream) override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    Matrix m_matrix;
    Matrix m_inverse;
    bool m_identity = true;
};

} // namespace orvane
