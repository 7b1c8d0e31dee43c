// SPDX-License-Identifier: MIT
#include <orvane/geometry/placement.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/stream.h>

namespace orvane {

namespace {

// A normal goes with the transposed inverse: its dot products with the inverse's rows.
Vector throughTransposed(const Vector &normal, const Matrix &inverse)
{
    return Normalized(Vector(Dot(normal, inverse.Row(0)), Dot(normal, inverse.Row(1)),
                             Dot(normal, inverse.Row(2))));
}

} // namespace

bool Placement::SetWorldMatrix(const Matrix &matrix)
{
    Matrix inverse = matrix;
    if (!inverse.Invert()) {
        log(QStringLiteral("A transformation that flattens space was refused."));
        return false;
    }
    m_matrix = matrix;
    m_inverse = inverse;
    m_identity = matrix.IsIdentity();
    return true;
}

Vector Placement::NormalToWorld(const Vector &normal) const
{
    return m_identity ? Normalized(normal) : throughTransposed(normal, m_inverse);
}

Vector Placement::NormalToLocal(const Vector &normal) const
{
    return m_identity ? Normalized(normal) : throughTransposed(normal, m_matrix);
}

void Placement::Serialize(Stream &stream)
{
    Node::Serialize(stream);
    Matrix matrix = m_matrix;
    stream.Transfer(matrix);
    if (!stream.IsWriting())
        SetWorldMatrix(matrix);
}

const ClassDesc *Placement::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *Placement::StaticClass()
{
    static const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Placement", "Placement",
                                createInstances<Placement>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = Placement::StaticClass();
} // namespace

} // namespace orvane
