// SPDX-License-Identifier: MIT
// Makes a large input to measure a run with: a flat mesh and a lattice of wavy strokes on it.
// usage: makelattice FOLDER [CURVES [POINTS [DEGREES]]]
// CURVES strokes of POINTS points, half of them across the other half, the lattice turned by
// DEGREES. Writes plane.obj and lattice.json, the same bytes each time.

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QStringList>

#include <cmath>
#include <cstdio>

namespace {

const double Side = 100.0;                  // of the lattice, scene units
const int MeshSide = 150;                   // quads along each side of the mesh
const double Wave = 0.05;                   // height of a wave, scene units
const double WaveLength = 9.0;              // scene units
const double Degree = 0.017453292519943295; // radians

struct Lattice
{
    int curves = 1000;
    int points = 100;
    double degrees = 0.0;
};

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 9);
}

// The mesh is half as large again as the lattice, so that it holds it however it is turned.
QByteArray planeText()
{
    QByteArray text;
    for (int j = 0; j <= MeshSide; ++j) {
        for (int i = 0; i <= MeshSide; ++i)
            text += "v " + number(1.5 * Side * (double(i) / MeshSide - 0.5)) + ' '
                    + number(1.5 * Side * (double(j) / MeshSide - 0.5)) + " 0\n";
    }
    for (int j = 0; j < MeshSide; ++j) {
        for (int i = 0; i < MeshSide; ++i) {
            const int corner = j * (MeshSide + 1) + i + 1;
            text += "f " + QByteArray::number(corner) + ' ' + QByteArray::number(corner + 1) + ' '
                    + QByteArray::number(corner + MeshSide + 2) + ' '
                    + QByteArray::number(corner + MeshSide + 1) + '\n';
        }
    }
    return text;
}

QByteArray pointText(const Lattice &lattice, int curve, int point)
{
    const bool across = curve % 2 == 1;
    const double along = Side * ((point + 0.5) / lattice.points - 0.5);
    const double place = Side * ((curve / 2 + 0.5) / (lattice.curves / 2) - 0.5);
    // Each stroke waves in a phase of its own, so that no crossing falls on a point.
    const double wave = Wave * std::sin(along / WaveLength * 6.28 + 1.7 * curve);
    const double x = across ? place + wave : along;
    const double y = across ? along : place + wave;
    const double c = std::cos(lattice.degrees * Degree);
    const double s = std::sin(lattice.degrees * Degree);
    return '[' + number(c * x - s * y) + ", " + number(s * x + c * y) + ", 0]";
}

QByteArray curvesText(const Lattice &lattice)
{
    QByteArray text = "{\"curves\": [\n";
    for (int curve = 0; curve < lattice.curves; ++curve) {
        text += "{\"name\": \"stroke " + QByteArray::number(curve) + "\", \"points\": [";
        for (int point = 0; point < lattice.points; ++point) {
            text += point > 0 ? ", " : "";
            text += pointText(lattice, curve, point);
        }
        text += curve + 1 < lattice.curves ? "]},\n" : "]}\n";
    }
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
    Lattice lattice;
    if (words.size() > 2)
        lattice.curves = words[2].toInt();
    if (words.size() > 3)
        lattice.points = words[3].toInt();
    if (words.size() > 4)
        lattice.degrees = words[4].toDouble();
    if (words.size() < 2 || words.size() > 5 || lattice.curves < 2 || lattice.points < 2) {
        std::fputs("usage: makelattice FOLDER [CURVES [POINTS [DEGREES]]]\n", stderr);
        return 2;
    }
    const QDir folder(words[1]);
    if (writeFile(folder.filePath(QStringLiteral("plane.obj")), planeText())
        && writeFile(folder.filePath(QStringLiteral("lattice.json")), curvesText(lattice)))
        return 0;
    std::fprintf(stderr, "%s: cannot be written to\n", qPrintable(words[1]));
    return 3;
}
