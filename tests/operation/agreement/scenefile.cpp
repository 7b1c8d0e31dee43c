// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/scenefile.h"

#include "tests/operation/agreement/planarscenes.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const double Percent = 100.0;

QByteArray curvesText(const PlanarScene &scene)
{
    QJsonArray curves;
    for (const PlanarStroke &stroke : scene.strokes) {
        QJsonArray points;
        for (const orvane::Vector &place : stroke.places)
            points.append(QJsonArray{double(place.x), double(place.y), double(place.z)});
        curves.append(
            QJsonObject{{QStringLiteral("name"), QStringLiteral("c%1").arg(curves.size())},
                        {QStringLiteral("closed"), stroke.closed},
                        {QStringLiteral("points"), points}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("curves"), curves}}).toJson();
}

QByteArray sheetText()
{
    const int side = PlanarSheetSize + 1;
    QByteArray text;
    for (int v = 0; v < side * side; ++v)
        text += QStringLiteral("v %1 %2 0\n").arg(v % side).arg(v / side).toLatin1();
    for (int v = 1; v < side * PlanarSheetSize; ++v) {
        if (v % side == 0)
            continue;
        text += QStringLiteral("f %1 %2 %3 %4\n")
                    .arg(v)
                    .arg(v + 1)
                    .arg(v + 1 + side)
                    .arg(v + side)
                    .toLatin1();
    }
    return text;
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

QString saveScene(const PlanarScene &scene, const QString &path, int maximumEdges)
{
    const QString curves = path + QStringLiteral(".json");
    const QString sheet = path + QStringLiteral(".obj");
    if (!write(curves, curvesText(scene)) || !write(sheet, sheetText()))
        return {};
    return QStringLiteral("quillmesh build %1 %2 -o %3-built.obj --max-edges %4 --merge %5 "
                          "--tolerance 5 --overrun %6%7")
        .arg(sheet, curves, path)
        .arg(maximumEdges)
        .arg(Percent * double(scene.mergeDistance))
        .arg(Percent * double(scene.overrun))
        .arg(scene.selfIntersections ? QStringLiteral(" --self-intersections") : QString());
}
