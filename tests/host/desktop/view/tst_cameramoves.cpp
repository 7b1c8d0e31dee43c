// SPDX-License-Identifier: MIT
#include "tests/host/desktop/view/scenecamera.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>

using orvane::Camera;
using orvane::Matrix;
using orvane::StandardView;
using orvane::Vector;

namespace {

const double Nearest = 1e-4 * std::sqrt(12.0); // for a pivot of a scene of side 2

class CameraMoves : public testing::TestWithParam<bool>
{};

// Where a ring of points around the scene is seen.
QVector<QPointF> pictureOf(const Camera &camera)
{
    QVector<QPointF> pixels;
    for (int i = 0; i < 27; ++i) {
        const Vector point(float(i % 3 - 1), float(i / 3 % 3 - 1), float(i / 9 - 1));
        pixels.append(camera.Project(point * 0.5f).pixel);
    }
    return pixels;
}

double change(const QVector<QPointF> &a, const QVector<QPointF> &b)
{
    double most = 0.0;
    for (int i = 0; i < a.size(); ++i)
        most = std::max(most, apart(a[i], b[i]));
    return most;
}

Camera unitCamera(bool orthographic, std::mt19937 &random)
{
    return cameraAt(boxBetween({-1, -1, -1}, {1, 1, 1}), orthographic, random);
}

// A point before the eye that is seen at the pixel.
Vector pickedAt(const Camera &camera, const QPointF &pixel, std::mt19937 &random)
{
    return camera.PointAt(pixel, camera.PivotDepth() * double(randomBetween(random, 0.8f, 1.25f)));
}

bool isInUnitBox(const Vector &point)
{
    return std::abs(point.x) <= 1.0f && std::abs(point.y) <= 1.0f && std::abs(point.z) <= 1.0f;
}

// As the wheel does it.
void zoomTowards(Camera &camera, const Vector &point, double factor)
{
    if (camera.SetPivot(point))
        camera.Zoom(factor);
}

void randomMove(Camera &camera, std::mt19937 &random)
{
    const auto number = [&random](float size) {
        return double(randomBetween(random, -size, size));
    };
    switch (random() % 8) {
    case 0:
        camera.Orbit(number(3.0f), number(3.0f));
        break;
    case 1:
        camera.Pan({number(2000.0f), number(2000.0f)});
        break;
    case 2:
        camera.Zoom(std::exp(number(4.0f)));
        break;
    case 3:
        zoomTowards(camera, pickedAt(camera, randomPixel(random), random), std::exp(number(2.0f)));
        break;
    case 4:
        camera.SetPivot(pickedAt(camera, randomPixel(random), random));
        break;
    case 5:
        camera.SetOrthographic(random() % 2);
        break;
    case 6:
        camera.LookFrom(StandardView(random() % 6));
        break;
    default:
        camera.Orbit(number(1e6f), number(0.01f));
    }
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Camera, CameraMoves, testing::Bool());

TEST_P(CameraMoves, thePointUnderTheCursorStaysWhileZooming)
{
    std::mt19937 random(testSeed());
    Camera camera = unitCamera(GetParam(), random);
    double worst = 0.0;
    double nearest = HUGE_VAL;
    int zooms = 0;
    while (zooms < 1000) {
        // A point of the scene in view; after a long way in there may be none, then from afar.
        const Vector point = pickedAt(camera, randomPixel(random), random);
        if (!isInUnitBox(point)) {
            if (random() % 20 == 0)
                camera = unitCamera(GetParam(), random);
            continue;
        }
        ++zooms;
        const QPointF pixel = camera.Project(point).pixel;
        const double before = camera.PixelSize(camera.DepthOf(point));
        const double depth = GetParam() ? camera.PivotDepth() : camera.DepthOf(point);
        const double factor = std::exp(double(randomBetween(random, -0.9f, 0.5f)));
        zoomTowards(camera, point, factor);
        ASSERT_TRUE(camera.Project(point).seen);
        worst = std::max(worst, apart(camera.Project(point).pixel, pixel));
        const double after = camera.PixelSize(camera.DepthOf(point));
        const double limited = std::max(factor, std::min(1.0, Nearest / depth));
        EXPECT_NEAR(after / before, limited, 1e-3);
        nearest = std::min(nearest, camera.PivotDepth());
    }
    std::cout << "most: " << worst << " pixels; nearest: " << nearest << std::endl;
    EXPECT_LT(nearest, 0.05);
    EXPECT_LE(worst, 0.01);
}

TEST_P(CameraMoves, choosingAPivotChangesNothingThatIsSeen)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        Camera camera = unitCamera(GetParam(), random);
        const QVector<QPointF> before = pictureOf(camera);
        ASSERT_TRUE(camera.SetPivot(pickedAt(camera, randomPixel(random), random)));
        EXPECT_LE(change(before, pictureOf(camera)), 1e-6);
        camera.Orbit(1e-9, 1e-9);
        EXPECT_LE(change(before, pictureOf(camera)), 1e-4);
    }
}

TEST_P(CameraMoves, thePivotStaysAtItsPixelWhileOrbiting)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        Camera camera = unitCamera(GetParam(), random);
        const QPointF pixel = randomPixel(random);
        const Vector point = pickedAt(camera, pixel, random);
        ASSERT_TRUE(camera.SetPivot(point));
        for (int turn = 0; turn < 20; ++turn) {
            camera.Orbit(double(randomBetween(random, -1.0f, 1.0f)),
                         double(randomBetween(random, -1.0f, 1.0f)));
            const auto screen = camera.Project(point);
            if (screen.seen) {
                EXPECT_LE(apart(screen.pixel, pixel), 1e-3);
            }
        }
    }
}

TEST_P(CameraMoves, panningMovesThePivotWithTheCursor)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        Camera camera = unitCamera(GetParam(), random);
        const QPointF pixel = randomPixel(random);
        const Vector point = pickedAt(camera, pixel, random);
        ASSERT_TRUE(camera.SetPivot(point));
        const QPointF target = randomPixel(random);
        camera.Pan(target - pixel);
        EXPECT_LE(apart(camera.Project(point).pixel, target), 1e-3);
    }
}

TEST(CameraMoves, changingTheProjectionKeepsTheSizeAtThePivot)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 100; ++round) {
        Camera camera = unitCamera(false, random);
        ASSERT_TRUE(camera.SetPivot(pickedAt(camera, randomPixel(random), random)));
        const Vector pivot = camera.Pivot();
        const Vector beside = pivot + camera.RightAxis() * 0.3f + camera.UpAxis() * 0.2f;
        const QPointF before[] = {camera.Project(pivot).pixel, camera.Project(beside).pixel};
        const QVector<QPointF> picture = pictureOf(camera);
        camera.SetOrthographic(true);
        EXPECT_LE(apart(before[0], camera.Project(pivot).pixel), 1e-3);
        EXPECT_LE(apart(before[1], camera.Project(beside).pixel), 1e-3);
        EXPECT_GT(change(picture, pictureOf(camera)), 1.0);
        camera.SetOrthographic(false);
        EXPECT_LE(change(picture, pictureOf(camera)), 1e-9);
    }
}

TEST(CameraMoves, zoomingComesClosePastNothing)
{
    std::mt19937 random(testSeed());
    for (const bool orthographic : {false, true}) {
        Camera camera = unitCamera(orthographic, random);
        const Vector back = camera.BackAxis();
        for (int step = 0; step < 500; ++step) {
            camera.Zoom(0.5);
            ASSERT_GT(camera.PivotDepth(), 0.0);
            ASSERT_TRUE(camera.Project(camera.Pivot()).seen);
        }
        EXPECT_LT(camera.PivotDepth(), 1e-3);
        EXPECT_EQ(camera.BackAxis(), back);
        for (int step = 0; step < 500; ++step)
            camera.Zoom(2.0);
        EXPECT_GT(camera.PivotDepth(), 1e3);
        EXPECT_LT(camera.PivotDepth(), 1e4);
        camera.Zoom(1e-3);
        EXPECT_LT(camera.PivotDepth(), 10.0); // and it comes back
    }
}

TEST(CameraMoves, orbitingStopsOverThePolesAndStaysUpright)
{
    std::mt19937 random(testSeed());
    Camera camera = unitCamera(false, random);
    for (int step = 0; step < 50; ++step)
        camera.Orbit(0.0, 0.1);
    EXPECT_NEAR(camera.BackAxis().y, 1.0f, 1e-6f);
    const Vector right = camera.RightAxis();
    camera.Orbit(0.0, -0.1); // it leaves the pole the way it came
    EXPECT_NEAR(Dot(right, camera.RightAxis()), 1.0f, 1e-6f);
    EXPECT_GT(camera.UpAxis().y, 0.0f);
    for (int step = 0; step < 200; ++step) {
        camera.Orbit(double(randomBetween(random, -1.0f, 1.0f)),
                     double(randomBetween(random, -1.0f, 1.0f)));
        EXPECT_GE(camera.UpAxis().y, -1e-6f);
        EXPECT_NEAR(camera.RightAxis().y, 0.0f, 1e-7f);
    }
}

TEST(CameraMoves, anyMovesKeepTheMatricesFiniteAndTheAxesSquare)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 40; ++round) {
        const auto box = randomBox(random);
        Camera camera = cameraAt(box, false, random);
        for (int step = 0; step < 500; ++step) {
            randomMove(camera, random);
            const Matrix view = camera.ViewMatrix();
            const Matrix projection = camera.ProjectionMatrix(3.0);
            for (int i = 0; i < 16; ++i) {
                ASSERT_TRUE(std::isfinite(view.Data()[i]));
                ASSERT_TRUE(std::isfinite(projection.Data()[i]));
            }
            const Vector axes[] = {view.Row(0), view.Row(1), view.Row(2)};
            for (int i = 0; i < 3; ++i) {
                for (int k = 0; k < 3; ++k)
                    ASSERT_NEAR(Dot(axes[i], axes[k]), i == k ? 1.0f : 0.0f, 1e-6f);
            }
            ASSERT_GT(Dot(axes[0] & axes[1], axes[2]), 0.0f);
            ASSERT_LT(camera.NearDepth(), camera.FarDepth());
            ASSERT_GT(camera.PivotDepth(), 0.0);
            ASSERT_LE((camera.Eye() - box.Center()).Length(), 4.1e3f * box.Diagonal());
        }
        // However far it went, the scene is one key away.
        camera.Frame(box);
        EXPECT_LE(apart(camera.Project(box.Center()).pixel, {640.0, 360.0}), 0.01);
    }
}
