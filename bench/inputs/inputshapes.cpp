// SPDX-License-Identifier: MIT
#include "bench/inputs/inputshapes.h"

#include <cmath>
#include <functional>
#include <random>

using orvane::Vector;
using Stroke = QVector<Vector>;

namespace {

const double Pi = 3.14159265358979324;
const double SegmentsPerSquare = 10.0; // of side 1
const double Wave = 0.05;              // height of a wave, scene units
const double WaveLength = 9.0;         // scene units
const int ShortStroke = 8;             // segments
const double ShortStep = 0.6;          // length of their segments, scene units
const double DiscOfSide = 0.65;        // radius of the chords' disc, as a fraction of the side
const unsigned Seed = 20250607;

// The same numbers on every machine, which the distributions of the standard library are not.
class Random
{
public:
    double between(double low, double high)
    {
        return low + (high - low) * double(m_engine()) / 4294967296.0;
    }

private:
    std::mt19937 m_engine{Seed};
};

double sideFor(int segments)
{
    return std::sqrt(double(segments) / SegmentsPerSquare);
}

Vector placeAt(double x, double y)
{
    return {float(x), float(y), 0.0f};
}

struct LatticeForm
{
    double degrees = 0.0;
    int copies = 1;     // of each stroke
    double shift = 0.0; // of a copy along its stroke, scene units
    int pointCopies = 1;
};

Stroke latticeStroke(const LatticeForm &form, double side, double place, int curve, int copy)
{
    const bool across = curve % 2 == 1;
    const double c = std::cos(form.degrees * Pi / 180.0);
    const double s = std::sin(form.degrees * Pi / 180.0);
    const int points = qRound(side) + 1;
    Stroke stroke;
    for (int i = 0; i < points; ++i) {
        const double along = i - 0.5 * (points - 1) + copy * form.shift;
        // Each stroke waves in a phase of its own, so that no crossing falls on a point.
        const double swung = place + Wave * std::sin(2.0 * Pi * along / WaveLength + 1.7 * curve);
        const double x = across ? swung : along;
        const double y = across ? along : swung;
        for (int k = 0; k < form.pointCopies; ++k)
            stroke.append(placeAt(c * x - s * y, s * x + c * y));
    }
    return stroke;
}

// Segments of length 1; half of the strokes across the other half.
Drawing lattice(int segments, const LatticeForm &form)
{
    Drawing drawing;
    const int different = segments / (form.copies * form.pointCopies);
    drawing.side = std::round(sideFor(different));
    const int half = qMax(1, qRound(different / drawing.side / 2.0));
    for (int curve = 0; curve < 2 * half; ++curve) {
        const double place = drawing.side * ((curve / 2 + 0.5) / half - 0.5);
        for (int copy = 0; copy < form.copies; ++copy)
            drawing.strokes.append(latticeStroke(form, drawing.side, place, curve, copy));
    }
    return drawing;
}

Stroke straight(double x0, double y0, double x1, double y1, int segments)
{
    Stroke stroke;
    for (int i = 0; i <= segments; ++i) {
        const double t = double(i) / segments;
        stroke.append(placeAt(x0 + (x1 - x0) * t, y0 + (y1 - y0) * t));
    }
    return stroke;
}

Drawing chords(int segments)
{
    Random random;
    Drawing drawing;
    drawing.side = sideFor(segments);
    const double radius = DiscOfSide * drawing.side;
    for (int left = segments; left > 0;) {
        const double a = random.between(0.0, 2.0 * Pi);
        const double b = random.between(0.0, 2.0 * Pi);
        const int count =
            qBound(1, int(std::ceil(2.0 * radius * std::fabs(std::sin((a - b) / 2)))), left);
        drawing.strokes.append(straight(radius * std::cos(a), radius * std::sin(a),
                                        radius * std::cos(b), radius * std::sin(b), count));
        left -= count;
    }
    return drawing;
}

// Wanders with slow turns, and turns back at the edge of the square.
Stroke wander(Random &random, double side, int segments)
{
    const double half = 0.5 * side;
    double x = random.between(-half, half);
    double y = random.between(-half, half);
    double heading = random.between(0.0, 2.0 * Pi);
    Stroke stroke{placeAt(x, y)};
    for (int i = 0; i < segments; ++i) {
        heading += random.between(-0.5, 0.5);
        if (std::fabs(x + ShortStep * std::cos(heading)) > half)
            heading = Pi - heading;
        if (std::fabs(y + ShortStep * std::sin(heading)) > half)
            heading = -heading;
        x += ShortStep * std::cos(heading);
        y += ShortStep * std::sin(heading);
        stroke.append(placeAt(x, y));
    }
    return stroke;
}

Drawing wandering(int strokes, int segmentsEach)
{
    Random random;
    Drawing drawing;
    drawing.side = sideFor(strokes * segmentsEach);
    for (int i = 0; i < strokes; ++i)
        drawing.strokes.append(wander(random, drawing.side, segmentsEach));
    return drawing;
}

// Zigzags between two straight strokes, their corners exactly on both.
Drawing tangent(int segments)
{
    Drawing drawing;
    drawing.side = sideFor(segments);
    const int columns = qMax(2, qRound(drawing.side));
    const int rows = qMax(1, segments / (2 * columns));
    for (int row = 0; row < rows; ++row) {
        const double y = double(row - rows / 2) * 0.125; // exact, so that corners do lie on lines
        Stroke zigzag;
        for (int i = 0; i <= columns; ++i)
            zigzag.append(placeAt(i - columns / 2, y + (i % 2) * 0.125));
        drawing.strokes.append(zigzag);
        const double left = -columns / 2 - 0.25;
        drawing.strokes.append(straight(left, y, left + columns, y, columns));
    }
    drawing.side = qMax(double(columns), rows * 0.125) + 2.0;
    return drawing;
}

Drawing onePoint(int segments)
{
    Drawing drawing;
    const int strokes = qMax(2, int(std::sqrt(double(segments))));
    const int each = strokes | 1; // odd: the point is the middle of a segment
    drawing.side = each;
    const double half = 0.5 * each;
    for (int i = 0; i < strokes; ++i) {
        const double angle = Pi * (i + 0.25) / strokes;
        const double x = half * std::cos(angle);
        const double y = half * std::sin(angle);
        drawing.strokes.append(straight(-x, -y, x, y, each));
    }
    return drawing;
}

struct NamedShape
{
    const char *name;
    bool degenerate;
    std::function<Drawing(int)> make;
};

const QVector<NamedShape> &namedShapes()
{
    static const QVector<NamedShape> shapes = {
        {"lattice", false,
         [](int n) {
             return lattice(n, {});
         }},
        {"lattice30", false,
         [](int n) {
             return lattice(n, {30.0, 1, 0.0, 1});
         }},
        {"lattice75", false,
         [](int n) {
             return lattice(n, {75.0, 1, 0.0, 1});
         }},
        {"chords", false, chords},
        {"strokes", false,
         [](int n) {
             return wandering(qMax(1, n / ShortStroke), ShortStroke);
         }},
        {"scribble", false,
         [](int n) {
             return wandering(1, n);
         }},
        {"overlapping", true,
         [](int n) {
             return lattice(n, {0.0, 2, 0.5, 1});
         }},
        {"tangent", true, tangent},
        {"duplicate", true,
         [](int n) {
             return lattice(n, {0.0, 2, 0.0, 1});
         }},
        {"zerolength", true,
         [](int n) {
             return lattice(n, {0.0, 1, 0.0, 2});
         }},
        {"onepoint", true, onePoint},
    };
    return shapes;
}

} // namespace

int Drawing::segmentCount() const
{
    int count = 0;
    for (const Stroke &stroke : strokes)
        count += qMax(0, stroke.size() - 1);
    return count;
}

QStringList inputShapes()
{
    QStringList names;
    for (const NamedShape &shape : namedShapes())
        names.append(QString::fromLatin1(shape.name));
    return names;
}

QStringList degenerateShapes()
{
    QStringList names;
    for (const NamedShape &shape : namedShapes()) {
        if (shape.degenerate)
            names.append(QString::fromLatin1(shape.name));
    }
    return names;
}

Drawing drawingOf(const QString &shape, int segments)
{
    for (const NamedShape &known : namedShapes()) {
        if (shape == QLatin1String(known.name))
            return known.make(qMax(1, segments));
    }
    return {};
}
