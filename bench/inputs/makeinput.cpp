// SPDX-License-Identifier: MIT
// Writes an input of the benchmarks for the command line: a flat mesh and the strokes on it.
// usage: makeinput FOLDER SHAPE SEGMENTS
// Writes plane.obj and SHAPE.json, the same bytes each time.
#include "bench/inputs/inputshapes.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

#include <cmath>
#include <cstdio>

using orvane::Vector;

namespace {

const double MeshOfSide = 1.5; // side of the mesh: it holds the drawing however it is turned

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 9);
}

// Quads of side 1 about the origin.
QByteArray planeText(int quads)
{
    QByteArray text;
    for (int j = 0; j <= quads; ++j) {
        for (int i = 0; i <= quads; ++i)
            text += "v " + number(i - 0.5 * quads) + ' ' + number(j - 0.5 * quads) + " 0\n";
    }
    for (int j = 0; j < quads; ++j) {
        for (int i = 0; i < quads; ++i) {
            const int corner = j * (quads + 1) + i + 1;
            text += "f " + QByteArray::number(corner) + ' ' + QByteArray::number(corner + 1) + ' '
                    + QByteArray::number(corner + quads + 2) + ' '
                    + QByteArray::number(corner + quads + 1) + '\n';
        }
    }
    return text;
}

QByteArray strokeText(const QVector<Vector> &stroke, int index)
{
    QByteArray text = "{\"name\": \"stroke " + QByteArray::number(index) + "\", \"points\": [";
    for (int i = 0; i < stroke.size(); ++i) {
        text += i > 0 ? ", [" : "[";
        text += number(double(stroke[i].x)) + ", " + number(double(stroke[i].y)) + ", 0]";
    }
    return text + "]}";
}

QByteArray strokesText(const Drawing &drawing)
{
    QByteArray text = "{\"curves\": [\n";
    for (int i = 0; i < drawing.strokes.size(); ++i)
        text += strokeText(drawing.strokes[i], i) + (i + 1 < drawing.strokes.size() ? ",\n" : "\n");
    return text + "]}\n";
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList words = application.arguments();
    const Drawing drawing = words.size() == 4 ? drawingOf(words[2], words[3].toInt()) : Drawing();
    if (drawing.strokes.isEmpty()) {
        std::fprintf(stderr, "usage: makeinput FOLDER SHAPE SEGMENTS\nshapes: %s\n",
                     qPrintable(inputShapes().join(QLatin1Char(' '))));
        return 2;
    }
    const QDir folder(words[1]);
    const int quads = int(std::ceil(MeshOfSide * drawing.side)) + 2;
    if (writeFile(folder.filePath(QStringLiteral("plane.obj")), planeText(quads))
        && writeFile(folder.filePath(words[2] + QStringLiteral(".json")), strokesText(drawing)))
        return 0;
    std::fprintf(stderr, "%s: cannot be written to\n", qPrintable(words[1]));
    return 3;
}
