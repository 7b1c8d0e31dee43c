// SPDX-License-Identifier: MIT
#include "host/files/curvejson.h"

#include "host/files/textwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace orvane {

namespace {

const QLatin1String CurvesKey("curves");
const QLatin1String NameKey("name");
const QLatin1String ClosedKey("closed");
const QLatin1String PointsKey("points");

QString expectedShape()
{
    return QStringLiteral(
        "expected {\"curves\": [{\"name\", \"closed\", \"points\": [[x, y, z], ...]}]}.");
}

// Both counted from 1, columns in bytes.
QString lineAndColumn(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    return QStringLiteral("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(before.size() - before.lastIndexOf('\n'));
}

class CurveJsonReader
{
public:
    explicit CurveJsonReader(QVector<CurveData> *curves) : m_curves(curves) {}

    bool read(const QJsonArray &curves)
    {
        for (const QJsonValue &value : curves) {
            ++m_number;
            m_name.clear();
            if (!readCurve(value))
                return false;
        }
        return true;
    }

    const QString &error() const { return m_error; }

private:
    bool readCurve(const QJsonValue &value)
    {
        const QJsonObject object = value.toObject();
        const QJsonValue name = object[NameKey];
        const QJsonValue closed = object[ClosedKey];
        const QJsonValue points = object[PointsKey];
        if (!value.isObject())
            return fail(QStringLiteral(": it is no object; ") + expectedShape());
        if (!name.isString() && !name.isUndefined())
            return fail(QStringLiteral(": \"name\" is no text; expected text in quotes."));
        m_name = name.toString();
        if (!closed.isBool() && !closed.isUndefined())
            return fail(
                QStringLiteral(": \"closed\" is neither true nor false; expected one of them."));
        if (!points.isArray())
            return fail(QStringLiteral(": \"points\" is no list; ") + expectedShape());
        m_curves->append({m_name, closed.toBool(), {}});
        return readPoints(points.toArray());
    }

    bool readPoints(const QJsonArray &points)
    {
        QVector<Vector> &result = m_curves->last().points;
        result.reserve(points.size());
        for (const QJsonValue &value : points) {
            const QJsonArray point = value.toArray();
            const QString place = QStringLiteral(", point %1: ").arg(result.size() + 1);
            if (point.size() != 3)
                return fail(place + QStringLiteral("it is no list of three; expected [x, y, z]."));
            float coordinate[3];
            for (int i = 0; i < 3; ++i) {
                coordinate[i] = float(point[i].toDouble());
                if (!point[i].isDouble())
                    return fail(place
                                + QStringLiteral("a coordinate is no number; "
                                                 "expected three finite numbers."));
                if (!std::isfinite(coordinate[i]))
                    return fail(place
                                + QStringLiteral("a coordinate is not a finite number; "
                                                 "expected three finite numbers."));
            }
            result.append({coordinate[0], coordinate[1], coordinate[2]});
        }
        return true;
    }

    bool fail(const QString &text)
    {
        const QString name = m_name.isEmpty() ? QString() : QStringLiteral(" (\"%1\")").arg(m_name);
        m_error = QStringLiteral("curve %1").arg(m_number) + name + text;
        return false;
    }

    QVector<CurveData> *m_curves;
    QString m_name;   // of the curve that is being read
    int m_number = 0; // counted from 1
    QString m_error;
};

// The shortest decimal number that gives the float back, rather than all digits of its double.
double shortNumber(float value)
{
    return numberText(value).toDouble();
}

} // namespace

bool readCurveJson(const QByteArray &text, QVector<CurveData> *curves, QString *error)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(text, &problem);
    if (problem.error != QJsonParseError::NoError) {
        *error =
            QStringLiteral("%1: %2; %3")
                .arg(lineAndColumn(text, problem.offset), problem.errorString(), expectedShape());
        return false;
    }
    const QJsonValue list = document.object()[CurvesKey];
    if (!list.isArray()) {
        *error = QStringLiteral("there is no list named \"curves\"; ") + expectedShape();
        return false;
    }
    CurveJsonReader reader(curves);
    if (reader.read(list.toArray()))
        return true;
    *error = reader.error();
    return false;
}

QByteArray curveJsonOf(const QVector<CurveData> &curves)
{
    QByteArray text = "{\"curves\": [";
    for (const CurveData &curve : curves) {
        QJsonArray points;
        for (const Vector &p : curve.points)
            points.append(QJsonArray{shortNumber(p.x), shortNumber(p.y), shortNumber(p.z)});
        const QJsonObject object{
            {NameKey, curve.name}, {ClosedKey, curve.closed}, {PointsKey, points}};
        text += text.endsWith('[') ? "\n" : ",\n"; // a line for each curve
        text += QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    return text + "\n]}\n";
}

} // namespace orvane
