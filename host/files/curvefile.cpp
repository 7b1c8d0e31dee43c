// SPDX-License-Identifier: MIT
#include "host/files/curvefile.h"

#include "host/files/curvejson.h"
#include "host/files/curveobj.h"
#include "host/files/safefile.h"

#include <orvane/geometry/orvanecurve.h>

#include <QFileInfo>

namespace orvane {

namespace {

bool hasSuffix(const QString &path, const char *suffix)
{
    return QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

//! Owned by the caller.
OrvaneCurve *curveOf(const CurveData &data, int number)
{
    auto *curve = new OrvaneCurve;
    curve->SetName(data.name.isEmpty() ? QStringLiteral("curve %1").arg(number) : data.name);
    curve->SetClosed(data.closed);
    QVector<Vector> points = data.points;
    while (data.closed && points.size() > 1 && points.last() == points.first())
        points.removeLast();
    for (const Vector &point : qAsConst(points))
        curve->AppendPoint(CurvePoint(point));
    if (data.closed && points.size() > 1)
        curve->AppendPoint(CurvePoint(curve->ClosingPosition()));
    return curve;
}

CurveData dataOf(const OrvaneCurve &curve)
{
    CurveData data{curve.Name(), curve.Closed(), {}};
    for (int i = 0; i < curve.DrawnPointCount(); ++i)
        data.points.append(curve.Points()[i].position);
    return data;
}

// What keeps the curves from being written; empty when nothing does.
QString problemIn(const QVector<CurveData> &curves)
{
    if (curves.isEmpty())
        return QStringLiteral("there are no curves to write.");
    for (const CurveData &curve : curves) {
        for (int i = 0; i < curve.points.size(); ++i) {
            if (!curve.points[i].IsFinite())
                return QStringLiteral("point %1 of curve \"%2\" is at no finite place.")
                    .arg(i + 1)
                    .arg(curve.name);
        }
    }
    return {};
}

} // namespace

QVector<OrvaneCurve *> readCurves(const QString &path, QString *error)
{
    QByteArray text;
    if (!readWhole(path, &text, error))
        return {};
    QVector<CurveData> curves;
    QString problem;
    const bool obj = hasSuffix(path, "obj");
    if (obj)
        readCurveObj(text, &curves, &problem);
    else
        readCurveJson(text, &curves, &problem);
    if (problem.isEmpty() && curves.isEmpty())
        problem =
            obj ? QStringLiteral("the file has no polylines; expected at least one \"l\" line.")
                : QStringLiteral("the list of curves is empty; expected at least one curve.");
    QVector<OrvaneCurve *> result;
    if (!problem.isEmpty()) {
        *error = aboutFile(path, problem);
        return result;
    }
    for (const CurveData &data : qAsConst(curves))
        result.append(curveOf(data, result.size() + 1));
    return result;
}

bool writeCurves(const QVector<const OrvaneCurve *> &curves, const QString &path, QString *error)
{
    QVector<CurveData> data;
    for (const OrvaneCurve *curve : curves)
        data.append(dataOf(*curve));
    const bool obj = hasSuffix(path, "obj");
    const QString problem = obj || hasSuffix(path, "json")
                                ? problemIn(data)
                                : QStringLiteral("curves are not written in this format; expected "
                                                 "a name that ends in .json or .obj.");
    if (!problem.isEmpty()) {
        *error = aboutFile(path, problem);
        return false;
    }
    return writeWhole(path, obj ? curveObjOf(data) : curveJsonOf(data), error);
}

} // namespace orvane
