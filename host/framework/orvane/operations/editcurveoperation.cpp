// SPDX-License-Identifier: MIT
#include <orvane/operations/editcurveoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/operations/curvepoints.h>

#include <cstring>

namespace orvane {

namespace {

// Compared as what undo brings back: bit by bit.
bool areSame(const QVector<CurvePoint> &a, const QVector<CurvePoint> &b)
{
    return a.size() == b.size()
           && (a.isEmpty()
               || std::memcmp(a.constData(), b.constData(), size_t(a.size()) * sizeof(CurvePoint))
                      == 0);
}

} // namespace

EditCurveOperation::EditCurveOperation(const OrvaneCurve *curve, const QVector<CurvePoint> &points,
                                       bool closed)
    : NodeOperation(curve, OrvaneCurve::StaticClass()), m_points(points), m_closed(closed)
{}

bool EditCurveOperation::Exchange(Node &node, bool first)
{
    auto &curve = static_cast<OrvaneCurve &>(node);
    const QVector<CurvePoint> points = curve.Points();
    const bool closed = curve.Closed();
    if (first && closed == m_closed && areSame(points, m_points))
        return false;
    if (!areValid(m_points)) {
        log(QStringLiteral("Points that are nowhere were refused; \"%1\" keeps its own.")
                .arg(curve.Name()));
        return false;
    }
    curve.SetPoints(m_points);
    curve.SetClosed(m_closed);
    m_points = points;
    m_closed = closed;
    return true;
}

void EditCurveOperation::Serialize(Stream &stream)
{
    NodeOperation::Serialize(stream);
    stream.Transfer(m_points);
    stream.Transfer(m_closed);
}

const ClassDesc *EditCurveOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *EditCurveOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "EditCurveOperation",
                                QT_TRANSLATE_NOOP("EditCurveOperation", "Edit Curve"),
                                createInstances<EditCurveOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = EditCurveOperation::StaticClass();
} // namespace

} // namespace orvane
