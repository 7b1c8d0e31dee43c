// SPDX-License-Identifier: MIT
#include "host/files/curveobj.h"

#include "host/files/objtext.h"
#include "host/files/textwords.h"

namespace orvane {

namespace {

class ObjLineReader
{
public:
    ObjLineReader(const QByteArray &text, QVector<CurveData> *curves)
        : m_lines(text, true), m_curves(curves)
    {}

    bool read()
    {
        while (m_lines.next()) {
            if (!readElement(m_lines.words()))
                return false;
        }
        // Only now: a polyline may come before its vertices.
        for (int i = 0; i < m_polylines.size(); ++i) {
            if (!finish(i))
                return false;
        }
        return true;
    }

    const QString &error() const { return m_error; }

private:
    struct Polyline
    {
        int line;
        QString name;
        QVector<int> vertices;
    };

    bool readElement(const Words &words)
    {
        if (words[0] == "o" || words[0] == "g")
            m_name = objName(words);
        if (words[0] == "l")
            return readPolyline(words);
        if (words[0] != "v")
            return true;
        QString what;
        m_positions.append(Vector());
        if (readObjPlace(words, &m_positions.last(), &what))
            return true;
        return fail(m_lines.line(),
                    QStringLiteral("vertex %1: %2").arg(m_positions.size()).arg(what));
    }

    bool readPolyline(const Words &words)
    {
        m_polylines.append({m_lines.line(), m_name, {}});
        for (size_t i = 1; i < words.size(); ++i) {
            QString what;
            const int vertex = readObjReference(words[i].substr(0, words[i].find('/')),
                                                m_positions.size(), QLatin1String("vertex"), &what);
            if (vertex < 0)
                return fail(m_lines.line(),
                            QStringLiteral("curve %1 %2").arg(m_polylines.size()).arg(what));
            m_polylines.last().vertices.append(vertex);
        }
        return true;
    }

    bool finish(int number)
    {
        Polyline &polyline = m_polylines[number];
        CurveData curve{polyline.name, false, {}};
        QVector<int> &vertices = polyline.vertices;
        curve.closed = vertices.size() > 1 && vertices.first() == vertices.last();
        if (curve.closed)
            vertices.removeLast();
        for (int vertex : qAsConst(vertices)) {
            if (vertex >= m_positions.size())
                return fail(
                    polyline.line,
                    QStringLiteral("curve %1 refers to vertex %2, but the file has %3 vertices")
                        .arg(number + 1)
                        .arg(vertex + 1)
                        .arg(m_positions.size()));
            curve.points.append(m_positions[vertex]);
        }
        m_curves->append(curve);
        return true;
    }

    bool fail(int line, const QString &text)
    {
        m_error = QStringLiteral("line %1: %2.").arg(line).arg(text);
        return false;
    }

    TextLines m_lines;
    QVector<CurveData> *m_curves;
    QVector<Vector> m_positions;
    QVector<Polyline> m_polylines;
    QString m_name; // of the latest object or group
    QString m_error;
};

} // namespace

bool readCurveObj(const QByteArray &text, QVector<CurveData> *curves, QString *error)
{
    ObjLineReader reader(text, curves);
    if (reader.read())
        return true;
    *error = reader.error();
    return false;
}

QByteArray curveObjOf(const QVector<CurveData> &curves)
{
    QByteArray text;
    int vertices = 0;
    for (const CurveData &curve : curves) {
        if (curve.points.isEmpty())
            continue;
        text += "o " + curve.name.simplified().toUtf8() + '\n';
        for (const Vector &p : curve.points)
            text += "v " + numberText(p.x) + ' ' + numberText(p.y) + ' ' + numberText(p.z) + '\n';
        text += 'l';
        for (int i = 1; i <= curve.points.size(); ++i)
            text += ' ' + QByteArray::number(vertices + i);
        if (curve.closed)
            text += ' ' + QByteArray::number(vertices + 1);
        text += '\n';
        vertices += curve.points.size();
    }
    return text;
}

} // namespace orvane
