// SPDX-License-Identifier: MIT
#include <orvane/operations/transformoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/scenenodes.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const int SmallestCurve = 8; // bytes: a node number and a count of points

bool canStandAt(const Geometry &geometry, const Matrix &matrix)
{
    const float *elements = matrix.Data();
    Placement placement;
    if (!std::all_of(elements, elements + 16, [](float value) { return std::isfinite(value); })
        || !placement.SetWorldMatrix(matrix))
        return false;
    for (int i = 0; i < geometry.LevelCount(); ++i) {
        const QVector<Vector> &positions = geometry.Level(i)->Positions();
        if (!std::all_of(positions.cbegin(), positions.cend(), [&](const Vector &position) {
                return placement.ToWorld(position).IsFinite();
            }))
            return false;
    }
    return true;
}

bool areUsable(const QVector<PointsOfCurve> &curves)
{
    return std::all_of(curves.cbegin(), curves.cend(), [](const PointsOfCurve &curve) {
        return sceneNode(curve.curveID, OrvaneCurve::StaticClass()) && areValid(curve.points);
    });
}

void exchangePoints(QVector<PointsOfCurve> &curves)
{
    for (PointsOfCurve &kept : curves) {
        auto *curve =
            static_cast<OrvaneCurve *>(sceneNode(kept.curveID, OrvaneCurve::StaticClass()));
        const QVector<CurvePoint> before = curve->Points();
        curve->SetPoints(kept.points);
        kept.points = before;
    }
}

} // namespace

TransformOperation::TransformOperation(const Geometry *geometry, const Matrix &worldMatrix)
    : NodeOperation(geometry, Geometry::StaticClass()), m_matrix(worldMatrix)
{}

bool TransformOperation::Exchange(Node &node, bool first)
{
    auto &geometry = static_cast<Geometry &>(node);
    const Matrix before = geometry.Placement()->WorldMatrix();
    if (first && m_matrix == before)
        return false;
    const bool possible = canStandAt(geometry, m_matrix);
    if (possible && first)
        m_curves = pointsAfterMove(geometry, m_matrix);
    if (!possible || !areUsable(m_curves)) {
        log(QStringLiteral("\"%1\" cannot be moved there and back.").arg(node.Name()));
        Kernel()->ExplainFailure(tr("the transformation flattens the geometry or leads too far"));
        return false;
    }
    geometry.Placement()->SetWorldMatrix(m_matrix);
    exchangePoints(m_curves);
    m_matrix = before;
    return true;
}

void TransformOperation::Serialize(Stream &stream)
{
    NodeOperation::Serialize(stream);
    stream.Transfer(m_matrix);
    int count = m_curves.size();
    if (stream.IsWriting())
        stream.Transfer(count);
    else
        m_curves = QVector<PointsOfCurve>(stream.ReadCount(SmallestCurve));
    for (PointsOfCurve &curve : m_curves) {
        stream.Transfer(curve.curveID);
        stream.Transfer(curve.points);
    }
}

const ClassDesc *TransformOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *TransformOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "TransformOperation",
                                QT_TRANSLATE_NOOP("TransformOperation", "Transform"),
                                createInstances<TransformOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = TransformOperation::StaticClass();
} // namespace

} // namespace orvane
