// SPDX-License-Identifier: MIT
#include "bench/inputs/inputshapes.h"

#include "graph/segmentcrossing.h"

#include <gtest/gtest.h>

#include <cmath>

using orvane::Vector;

namespace {

const int Small = 2000;  // segments
const int Larger = 5000; // segments

struct Segment
{
    Vector a;
    Vector b;
    int stroke;
    int index;
};

QVector<Segment> segmentsOf(const Drawing &drawing)
{
    QVector<Segment> segments;
    for (int s = 0; s < drawing.strokes.size(); ++s) {
        const QVector<Vector> &stroke = drawing.strokes[s];
        for (int i = 0; i + 1 < stroke.size(); ++i)
            segments.append({stroke[i], stroke[i + 1], s, i});
    }
    return segments;
}

bool areApart(const Segment &a, const Segment &b)
{
    return qMax(a.a.x, a.b.x) < qMin(b.a.x, b.b.x) || qMax(b.a.x, b.b.x) < qMin(a.a.x, a.b.x)
           || qMax(a.a.y, a.b.y) < qMin(b.a.y, b.b.y) || qMax(b.a.y, b.b.y) < qMin(a.a.y, a.b.y);
}

int crossingCount(const Drawing &drawing)
{
    const QVector<Segment> segments = segmentsOf(drawing);
    int count = 0;
    for (int i = 0; i < segments.size(); ++i) {
        for (int j = i + 1; j < segments.size(); ++j) {
            const Segment &a = segments[i];
            const Segment &b = segments[j];
            if (areApart(a, b) || (a.stroke == b.stroke && b.index - a.index < 2))
                continue;
            Vector place;
            float ta = 0.0f;
            float tb = 0.0f;
            count += segmentsCross(a.a, a.b, b.a, b.b, place, ta, tb);
        }
    }
    return count;
}

bool areAllPointsWithin(const Drawing &drawing, float reach)
{
    for (const QVector<Vector> &stroke : drawing.strokes) {
        for (const Vector &point : stroke) {
            if (std::fabs(point.x) > reach || std::fabs(point.y) > reach || point.z != 0.0f)
                return false;
        }
    }
    return true;
}

} // namespace

TEST(InputShapes, everyShapeHasAboutAsManySegmentsAsAskedFor)
{
    for (const QString &shape : inputShapes()) {
        for (int segments : {Small, 50000}) {
            const int count = drawingOf(shape, segments).segmentCount();
            EXPECT_NEAR(count, segments, 0.06 * segments) << shape.toStdString();
        }
    }
}

TEST(InputShapes, everyShapeLiesOnItsMesh)
{
    for (const QString &shape : inputShapes()) {
        const Drawing drawing = drawingOf(shape, Small);
        EXPECT_TRUE(areAllPointsWithin(drawing, float(0.75 * drawing.side) + 1.0f))
            << shape.toStdString();
    }
}

TEST(InputShapes, twiceAskedForIsTheSameDrawing)
{
    for (const QString &shape : inputShapes())
        EXPECT_EQ(drawingOf(shape, Small).strokes, drawingOf(shape, Small).strokes);
}

TEST(InputShapes, anUnknownNameGivesNothing)
{
    EXPECT_TRUE(drawingOf(QStringLiteral("spiral"), Small).strokes.isEmpty());
}

TEST(InputShapes, crossingsGrowInProportionToSegments)
{
    for (const char *name :
         {"lattice", "lattice30", "lattice75", "chords", "strokes", "scribble"}) {
        const QString shape = QString::fromLatin1(name);
        const Drawing small = drawingOf(shape, Small);
        const Drawing larger = drawingOf(shape, Larger);
        const double few = double(crossingCount(small)) / small.segmentCount();
        const double many = double(crossingCount(larger)) / larger.segmentCount();
        EXPECT_GT(few, 0.8) << name;
        EXPECT_LT(few, 3.0) << name;
        EXPECT_NEAR(many / few, 1.0, 0.2) << name;
    }
}

TEST(InputShapes, strokesThroughOnePointCrossThereInPairs)
{
    const Drawing drawing = drawingOf(QStringLiteral("onepoint"), 900);
    const int strokes = drawing.strokes.size();
    EXPECT_EQ(crossingCount(drawing), strokes * (strokes - 1) / 2);
}
