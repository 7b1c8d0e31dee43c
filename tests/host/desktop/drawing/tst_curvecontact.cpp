// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include "host/desktop/drawing/curvecontact.h"
#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/runpast.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <QElapsedTimer>

#include <cmath>
#include <iostream>

using namespace orvane;

namespace {

const float Tolerance = 0.3f; // scene units
const float Length = 0.15f;   // scene units

using Lines = QVector<QVector<Vector>>;

class ContactTest : public DrawingTest
{
protected:
    //! A straight line across the sheet, from left to right at the height y.
    QVector<Vector> across(float y) const { return placesOf(line({1, y, 0}, {9, y, 0}, 9).points); }
};

// How often two lines of the plane z = 0 cross strictly between points of both.
int crossings(const QVector<Vector> &a, const QVector<Vector> &b)
{
    const auto side = [](const Vector &p, const Vector &q, const Vector &r) {
        return (double(q.x) - double(p.x)) * (double(r.y) - double(p.y))
               - (double(q.y) - double(p.y)) * (double(r.x) - double(p.x));
    };
    int count = 0;
    for (int i = 0; i + 1 < a.size(); ++i) {
        for (int k = 0; k + 1 < b.size(); ++k) {
            const double first = side(a[i], a[i + 1], b[k]) * side(a[i], a[i + 1], b[k + 1]);
            const double second = side(b[k], b[k + 1], a[i]) * side(b[k], b[k + 1], a[i + 1]);
            count += first < 0.0 && second < 0.0;
        }
    }
    return count;
}

} // namespace

TEST_F(ContactTest, endSnappedToACurveRunsALittlePastIt)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6);
    for (float end : {5.75f, 5.9f, 6.0f, 6.05f}) {
        for (float x : {3.0f, 3.3f, 4.5f}) {
            const CurveShape stroke = line({x, 2, 0}, {x, end, 0}, 9);
            EXPECT_EQ(crossings(placesOf(stroke.points), other), end > 6.0f && x != 3.0f);
            const CurveShape past = runPast(stroke, {other}, Tolerance, Length, surface());
            EXPECT_EQ(crossings(placesOf(past.points), other), 1) << x << " " << end;
            EXPECT_FALSE(touches(placesOf(past.points), {other}));
            EXPECT_NEAR(past.points.last().position.y, 6.0f + Length, 0.05f);
            EXPECT_EQ(past.points.first().position, stroke.points.first().position);
            expectOnSurface(past);
        }
    }
}

TEST_F(ContactTest, bothEndsRunPast)
{
    drawOn(gridOfQuads(10, 10));
    const Lines others = {across(2), across(8)};
    const CurveShape past =
        runPast(line({4.4f, 2, 0}, {4.6f, 8, 0}, 13), others, Tolerance, Length, surface());
    for (const QVector<Vector> &other : others)
        EXPECT_EQ(crossings(placesOf(past.points), other), 1);
    EXPECT_LT(past.points.first().position.y, 2.0f);
    EXPECT_GT(past.points.last().position.y, 8.0f);
}

TEST_F(ContactTest, endAcrossAlreadyOrFarAwayStays)
{
    drawOn(gridOfQuads(10, 10));
    for (float end : {6.12f, 5.5f, 6.4f}) {
        const CurveShape stroke = line({4.4f, 2, 0}, {4.6f, end, 0}, 13);
        const CurveShape past = runPast(stroke, {across(6)}, Tolerance, Length, surface());
        EXPECT_EQ(placesOf(past.points), placesOf(stroke.points)) << end;
    }
    const CurveShape loop = ring(1.0f, 0.0f, 20);
    EXPECT_EQ(runPast(loop, {across(1)}, Tolerance, Length, surface()).points.size(),
              loop.points.size());
}

TEST_F(ContactTest, strokesThatMeetInACornerCross)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6);
    const CurveShape past =
        runPast(line({9, 2, 0}, {9, 6, 0}, 9), {other}, Tolerance, Length, surface());
    EXPECT_EQ(crossings(placesOf(past.points), other), 1);
}

TEST_F(ContactTest, randomEndsNearACurveCrossItOnce)
{
    std::mt19937 random(testSeed());
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6);
    for (int round = 0; round < 500; ++round) {
        const Vector end(randomBetween(random, 1.5f, 8.5f), 6 - randomBetween(random, 0, 0.29f), 0);
        const float angle = randomBetween(random, 0.35f, 2.8f);
        const Vector start = end - Vector(std::cos(angle), std::sin(angle), 0) * 3.0f;
        if (start.x < 0.2f || start.x > 9.8f)
            continue;
        const CurveShape past =
            clearOf(runPast(line(start, end, 12), {other}, Tolerance, Length, surface()), {other},
                    surface());
        EXPECT_EQ(crossings(placesOf(past.points), other), 1) << round << " at angle " << angle;
        EXPECT_FALSE(touches(placesOf(past.points), {other}));
        expectOnSurface(past);
    }
}

TEST_F(ContactTest, pointOnAnotherCurveIsFoundAndMovedOff)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6);
    const CurveShape stroke = line({4.4f, 2, 0}, {4.4f, 8, 0}, 13); // a point at y = 6
    ASSERT_TRUE(touches(placesOf(stroke.points), {other}));
    EXPECT_EQ(crossings(placesOf(stroke.points), other), 0);
    const CurveShape clear = clearOf(stroke, {other}, surface());
    EXPECT_FALSE(touches(placesOf(clear.points), {other}));
    EXPECT_EQ(crossings(placesOf(clear.points), other), 1);
    ASSERT_EQ(clear.points.size(), 13);
    for (int i = 0; i < 13; ++i) {
        EXPECT_NEAR(clear.points[i].position.x, 4.4f, 1e-5f); // along its own way
        EXPECT_NEAR(clear.points[i].position.y, stroke.points[i].position.y, 0.02f);
    }
    expectOnSurface(clear);
}

TEST_F(ContactTest, strokeThroughAPointOfAnotherCurveGivesWay)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6); // a point at (4, 6)
    const CurveShape stroke = line({4, 2.1f, 0}, {4, 8.1f, 0}, 13);
    ASSERT_TRUE(touches(placesOf(stroke.points), {other}));
    const CurveShape clear = clearOf(stroke, {other}, surface());
    EXPECT_FALSE(touches(placesOf(clear.points), {other}));
    EXPECT_EQ(crossings(placesOf(clear.points), other), 1);
    expectOnSurface(clear);
}

TEST_F(ContactTest, pointOnPointGivesWayToo)
{
    drawOn(gridOfQuads(10, 10));
    const QVector<Vector> other = across(6);
    const CurveShape clear = clearOf(line({4, 2, 0}, {4, 8, 0}, 13), {other}, surface());
    EXPECT_FALSE(touches(placesOf(clear.points), {other}));
    EXPECT_EQ(crossings(placesOf(clear.points), other), 1);
}

TEST_F(ContactTest, closedCurveThroughSeamAndPointsIsCleared)
{
    drawOn(gridOfQuads(10, 10), Matrix::Translation({-5, -5, 0}));
    const CurveShape loop = ring(3.0f, 0.0f, 40);
    const QVector<Vector> other = placesOf(line({-4, 0, 0}, {4, 0, 0}, 3).points);
    ASSERT_TRUE(touches(placesOf(loop.points), {other}));
    const CurveShape clear = clearOf(loop, {other}, surface());
    EXPECT_TRUE(clear.closed);
    expectWellClosed(clear);
    EXPECT_FALSE(touches(placesOf(clear.points), {other}));
    EXPECT_EQ(crossings(placesOf(clear.points), other), 2);
}

TEST_F(ContactTest, curveThatTouchesNothingStaysBitForBit)
{
    drawOn(gridOfQuads(10, 10));
    const CurveShape stroke = line({4.4f, 2.1f, 0}, {4.6f, 8, 0}, 13);
    EXPECT_EQ(placesOf(clearOf(stroke, {across(6)}, surface()).points), placesOf(stroke.points));
    EXPECT_EQ(placesOf(clearOf(stroke, {}, surface()).points), placesOf(stroke.points));
    EXPECT_FALSE(touches(placesOf(stroke.points), {{}, {Vector(1, 1, 0)}}));
}

TEST_F(ContactTest, endsOnABallRunPastAMeridianAlongTheSurface)
{
    std::mt19937 random(testSeed());
    drawOn(sphere(60, 120));
    const QVector<Vector> meridian = placesOf(line({0, -0.8f, 0.6f}, {0, 0.8f, 0.6f}, 23).points);
    for (int round = 0; round < 100; ++round) {
        const float y = randomBetween(random, -0.5f, 0.5f);
        const float missing = randomBetween(random, 0.0f, 0.04f);
        const CurveShape stroke = line({-0.8f, y + 0.1f, 0.4f}, {-missing, y, 0.8f}, 20);
        const CurveShape past =
            clearOf(runPast(stroke, {meridian}, 0.08f, 0.03f, surface()), {meridian}, surface());
        expectOnSurface(past);
        EXPECT_GT(past.points.last().position.x, 0.01f);
        EXPECT_LT(past.points.last().position.x, 0.05f);
        EXPECT_LT(past.points[past.points.size() - 2].position.x, 0.0f);
        EXPECT_FALSE(touches(placesOf(past.points), {meridian}));
    }
}

TEST_F(ContactTest, amongTwoHundredCurvesItIsDoneAtOnce)
{
    drawOn(gridOfQuads(10, 10));
    Lines others;
    for (int i = 0; i < 200; ++i) {
        const float at = 0.5f + 0.045f * float(i);
        others.append(placesOf(line({at, 0.5f, 0}, {10 - at, 9.5f, 0}, 100).points));
    }
    const CurveShape stroke = line({0.6f, 5, 0}, {9.4f, 5, 0}, 300);
    QElapsedTimer timer;
    timer.start();
    const CurveShape past = runPast(stroke, others, 0.03f, 0.01f, surface());
    const CurveShape clear = clearOf(past, others, surface());
    const double time = double(timer.nsecsElapsed()) * 1e-6;
    std::cout << "runPast and clearOf: " << time << " ms" << std::endl;
    EXPECT_FALSE(touches(placesOf(clear.points), others));
    EXPECT_LT(time, double(timeLimit(100)));
}
