// SPDX-License-Identifier: MIT
// Makes the bundled example: head.obj, a sculpted head, and head_curves.json, the curves of an
// artist over it. The same bytes each time.
// usage: makeexample FOLDER
#include "examples/headnet.h"
#include "examples/polygonise.h"

#include <QByteArray>
#include <QDir>
#include <QSaveFile>

#include <cstdio>

namespace {

const float CellSize = 0.0205f; // scene units

QByteArray number(float value)
{
    return QByteArray::number(double(value), 'g', 7);
}

QByteArray meshText(const TriangleMesh &mesh)
{
    QByteArray text;
    for (const orvane::Vector &p : mesh.positions)
        text += "v " + number(p.x) + ' ' + number(p.y) + ' ' + number(p.z) + '\n';
    for (const auto &t : mesh.triangles) {
        text += 'f';
        for (int vertex : t)
            text += ' ' + QByteArray::number(vertex + 1);
        text += '\n';
    }
    return text;
}

QByteArray curvesText(const std::vector<NamedStroke> &strokes)
{
    QByteArray text = "{\"curves\": [\n";
    for (size_t i = 0; i < strokes.size(); ++i) {
        const NamedStroke &named = strokes[i];
        text += "{\"name\": \"" + QByteArray::fromStdString(named.name)
                + "\", \"closed\": " + (named.stroke.closed ? "true" : "false") + ", \"points\": [";
        const char *separator = "";
        for (const orvane::Vector &p : named.stroke.points) {
            text += separator + ('[' + number(p.x) + ", " + number(p.y) + ", " + number(p.z) + ']');
            separator = ", ";
        }
        text += i + 1 < strokes.size() ? "]},\n" : "]}\n";
    }
    return text + "]}\n";
}

bool writeFile(const QDir &folder, const char *name, const QByteArray &bytes)
{
    QSaveFile file(folder.filePath(QString::fromUtf8(name)));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    std::fprintf(stderr, "%s cannot be written into %s\n", name, qPrintable(folder.path()));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: makeexample FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const TriangleMesh head = polygoniseHead(CellSize);
    const std::vector<NamedStroke> strokes = drawHeadNet(head);
    if (!writeFile(folder, "head.obj", meshText(head))
        || !writeFile(folder, "head_curves.json", curvesText(strokes)))
        return 3;
    std::printf("head.obj: %zu triangles; head_curves.json: %zu curves\n", head.triangles.size(),
                strokes.size());
    return 0;
}
