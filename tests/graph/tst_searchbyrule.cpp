// SPDX-License-Identifier: MIT
#include "graph/intersectionsearch.h"
#include "graph/nodestore.h"
#include "tests/graph/plainsearch.h"
#include "tests/support/graphchecks.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iostream>
#include <limits>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const int SheetSize = 8;

// The real search held against the plain one, bit by bit.
class SearchByRule : public SceneCleaner
{
protected:
    SearchByRule() { NodeStore::instance().beginRun(); }

    static bool isSame(const Vector &a, const Vector &b)
    {
        return std::memcmp(&a, &b, sizeof(Vector)) == 0;
    }

    void compare(const QList<OrvaneCurve *> &curves, float distance, float overrun, bool self)
    {
        NodeStore::instance().beginRun();
        QList<IntersectionNode *> nodes;
        findIntersections(curves, nodes, distance, overrun, self);
        const QVector<PlainNode> plain = plainSearch(curves, distance, overrun, self);
        ASSERT_EQ(nodes.size(), plain.size());
        ASSERT_TRUE(isSound(nodes));
        ASSERT_TRUE(isClosedUnderLinks(nodes));
        for (int i = 0; i < nodes.size(); ++i) {
            ASSERT_TRUE(isSame(nodes[i]->position(), plain[i].position)) << "node " << i;
            ASSERT_TRUE(isSame(nodes[i]->normal, plain[i].normal)) << "node " << i;
            ASSERT_EQ(nodes[i]->curves, plain[i].curves) << "node " << i;
            ASSERT_EQ(nodes[i]->curvePoint.surfacePoint.Mesh(), nullptr);
            ASSERT_EQ(nodes[i]->vertexIndex, -1);
            QVector<int> links;
            for (IntersectionNode *neighbour : qAsConst(nodes[i]->neighbours))
                links.append(nodes.indexOf(neighbour));
            ASSERT_EQ(links, plain[i].links) << "node " << i;
        }
        found += nodes.size();
    }

    int found = 0;
};

QVector<Vector> randomWalk(std::mt19937 &random)
{
    const float size = float(SheetSize);
    const bool isFine = random() % 2 == 0;
    const float stride = isFine ? 0.6f : 3.0f;
    Vector place(randomBetween(random, 0.0f, size), randomBetween(random, 0.0f, size), 0.0f);
    QVector<Vector> places;
    const unsigned points = 2 + random() % 30;
    for (unsigned i = 0; i < points; ++i) {
        places.append(place);
        place += Vector(randomBetween(random, -stride, stride),
                        randomBetween(random, -stride, stride), 0.0f);
        place.z = randomBetween(random, -0.05f, 0.05f);
        const bool isTidy = random() % 8 == 0; // crossings at points and parallel pieces
        if (isTidy)
            place = Vector(std::floor(place.x), std::floor(place.y), 0.0f);
    }
    return places;
}

OrvaneCurve *randomCurve(Sheet &sheet, std::mt19937 &random)
{
    switch (random() % 12) {
    case 0:
        return nullptr;
    case 1:
        return sheet.stroke({});
    case 2:
        return sheet.stroke({{1.0f, 1.0f, 0.0f}});
    case 3:
        return sheet.straight({-3, -3, 0}, {-1, 20, 0}, 9); // beside the sheet
    case 4:
    case 5:
        return sheet.loop(randomWalk(random));
    default:
        return sheet.stroke(randomWalk(random));
    }
}

QList<OrvaneCurve *> randomScene(Sheet &sheet, std::mt19937 &random)
{
    QList<OrvaneCurve *> curves;
    const unsigned count = random() % 12;
    for (unsigned i = 0; i < count; ++i)
        curves.append(randomCurve(sheet, random));
    if (!curves.isEmpty() && random() % 8 == 0)
        curves.append(curves.first()); // the same one twice
    return curves;
}

// Strokes both ways across the sheet, turned about its middle.
void drawLattice(Sheet &sheet, std::mt19937 &random)
{
    const float angle = randomBetween(random, 0.0f, 1.5f);
    const Vector along(std::cos(angle), std::sin(angle), 0.0f);
    const Vector across(-along.y, along.x, 0.0f);
    const Vector middle(0.5f * SheetSize, 0.5f * SheetSize, 0.0f);
    const float half = 0.35f * SheetSize;
    for (int i = 0; i < 12; ++i) {
        const float offset = half * (float(i) / 5.5f - 1.0f);
        const Vector row = middle + across * offset;
        const Vector column = middle + along * offset;
        sheet.wavy(row - along * half, row + along * half, 50, 0.03f, 3.0f);
        sheet.wavy(column - across * half, column + across * half, 50, 0.03f, 3.0f);
    }
}

Vector randomPlace(std::mt19937 &random)
{
    return {randomBetween(random, 0.0f, SheetSize), randomBetween(random, 0.0f, SheetSize), 0.0f};
}

void drawChords(Sheet &sheet, std::mt19937 &random)
{
    for (int i = 0; i < 30; ++i)
        sheet.straight(randomPlace(random), randomPlace(random), 2 + int(random() % 60));
}

void drawShortStrokes(Sheet &sheet, std::mt19937 &random)
{
    for (int i = 0; i < 400; ++i) {
        const Vector from = randomPlace(random);
        sheet.wavy(from, from + randomVector(random, 0.5f), 2 + int(random() % 4), 0.1f);
    }
}

void drawScribbles(Sheet &sheet, std::mt19937 &random)
{
    for (int i = 0; i < 3; ++i) {
        QVector<Vector> places;
        for (int point = 0; point < 120; ++point)
            places.append(randomPlace(random) * 0.1f + Vector(0.03f * float(point), 2.0f, 0.0f));
        i == 0 ? sheet.loop(places) : sheet.stroke(places);
    }
}

// The same strokes once more, some backwards, some shifted along themselves, some points doubled.
void drawDuplicates(Sheet &sheet, std::mt19937 &random)
{
    for (int i = 0; i < 6; ++i) {
        QVector<Vector> places = randomWalk(random);
        sheet.stroke(places);
        sheet.stroke(places);
        std::reverse(places.begin(), places.end());
        sheet.stroke(places);
        for (Vector &place : places)
            place += places[1] - places[0];
        sheet.stroke(places);
        places.insert(1, places[0]);
        sheet.stroke(places);
    }
}

// Everything within a few widths of where coordinates are read as 0.
void drawNearZero(Sheet &sheet, std::mt19937 &random)
{
    for (int i = 0; i < 40; ++i) {
        QVector<Vector> places;
        for (int point = 0; point < 4; ++point) {
            Vector place = (randomVector(random) + Vector(1, 1, 0)) * 1e-4f;
            place.z = randomBetween(random, -1e-4f, 1e-4f);
            places.append(place);
        }
        sheet.stroke(places);
    }
}

void spoilAPoint(OrvaneCurve &curve, std::mt19937 &random)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float values[] = {std::numeric_limits<float>::quiet_NaN(), infinity, -infinity, 3e38f};
    const float value = values[random() % 4];
    QVector<CurvePoint> points = curve.Points();
    CurvePoint &point = points[int(random() % unsigned(points.size()))];
    point.surfacePoint.Shift({value, random() % 2 == 0 ? value : 0.0f, 0.0f});
    curve.SetPoints(points);
}

} // namespace

TEST_F(SearchByRule, randomScenesGiveTheSameNodesInTheSameOrderWithTheSameLinks)
{
    std::mt19937 random(testSeed());
    const float distances[] = {0.0f, 0.01f, 0.1f, 1.0f, -0.01f, -1.0f};
    const float overruns[] = {0.0f, 0.35f, 2.0f, -0.5f};
    for (int scene = 0; scene < 1000; ++scene) {
        orvane::Kernel()->Scene()->Clear();
        Sheet sheet(SheetSize);
        const QList<OrvaneCurve *> curves = randomScene(sheet, random);
        const float distance = distances[random() % 6];
        const float overrun = overruns[random() % 4];
        SCOPED_TRACE(scene);
        compare(curves, distance, overrun, false);
        compare(curves, distance, overrun, true);
        if (HasFatalFailure())
            return;
    }
    std::cout << found << " crossings" << std::endl;
    EXPECT_GT(found, 10000);
}

TEST_F(SearchByRule, placesThatAreNoFiniteNumbersNeitherStopNorDisturbIt)
{
    std::mt19937 random(testSeed());
    for (int scene = 0; scene < 300; ++scene) {
        orvane::Kernel()->Scene()->Clear();
        Sheet sheet(SheetSize);
        const QList<OrvaneCurve *> curves = randomScene(sheet, random);
        for (OrvaneCurve *curve : curves) {
            if (curve && curve->PointCount() > 0 && random() % 2 == 0)
                spoilAPoint(*curve, random);
        }
        SCOPED_TRACE(scene);
        const float infinity = std::numeric_limits<float>::infinity();
        const float odd[] = {std::numeric_limits<float>::quiet_NaN(), infinity, -infinity, 3e38f};
        const float distance = random() % 4 == 0 ? odd[random() % 4] : 0.05f;
        compare(curves, distance, 0.35f, true);
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(found, 500);
}

TEST_F(SearchByRule, aTurnedAndScaledSheetIsNoException)
{
    std::mt19937 random(testSeed());
    for (int scene = 0; scene < 50; ++scene) {
        orvane::Kernel()->Scene()->Clear();
        Sheet sheet(SheetSize, randomPlacement(random));
        const QList<OrvaneCurve *> curves = randomScene(sheet, random);
        SCOPED_TRACE(scene);
        compare(curves, 0.1f, 0.35f, true);
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(found, 500);
}

TEST_F(SearchByRule, whatIsFoundDependsOnNothingButTheCurves)
{
    Sheet sheet;
    sheet.grid(4, 4);
    sheet.figureEight({5, 5, 0}, 3.0f, 31);
    sheet.circle({5, 5, 0}, 2.2f, 17);
    compare(sheet.curves(), 0.05f, 0.2f, true);
    const int first = found;
    compare(sheet.curves(), 0.05f, 0.2f, true);
    EXPECT_EQ(found, 2 * first);
    EXPECT_GT(first, 40);
}

TEST_F(SearchByRule, scenesOfManyRunsOfSegmentsAreNoException)
{
    std::mt19937 random(testSeed());
    const auto drawings = {drawLattice,   drawChords,     drawShortStrokes,
                           drawScribbles, drawDuplicates, drawNearZero};
    const float distances[] = {0.0f, 1e-5f, 4e-5f, 0.02f, 0.2f};
    for (const auto draw : drawings) {
        for (int scene = 0; scene < 3; ++scene) {
            orvane::Kernel()->Scene()->Clear();
            Sheet sheet(SheetSize);
            draw(sheet, random);
            const int before = found;
            compare(sheet.curves(), distances[random() % 5], 0.1f, true);
            EXPECT_GT(found, before);
            if (HasFatalFailure())
                return;
        }
    }
    std::cout << found << " crossings" << std::endl;
}
