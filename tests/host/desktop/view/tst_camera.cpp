// SPDX-License-Identifier: MIT
#include "tests/host/desktop/view/scenecamera.h"
#include "tests/support/shapes.h"

#include <QRectF>

#include <gtest/gtest.h>

#include <cmath>

using orvane::Camera;
using orvane::Matrix;
using orvane::ScreenPoint;
using orvane::StandardView;
using orvane::Vector;
using orvane::ViewRay;

namespace {

const orvane::AxisAlignedBoundingBox UnitBox =
    boxBetween({-1.0f, -1.0f, -1.0f}, {1.0f, 1.0f, 1.0f});

struct Clip
{
    double x, y, z, w;
};

// The row vector (point, 1) times the sixteen floats as Matrix stores them.
Clip clipOf(const Camera &camera, const Vector &point, double lift = 0.0)
{
    const Matrix whole = camera.ViewMatrix() * camera.ProjectionMatrix(lift);
    const float *m = whole.Data();
    double sum[4];
    for (int column = 0; column < 4; ++column)
        sum[column] = double(point.x) * double(m[column]) + double(point.y) * double(m[4 + column])
                      + double(point.z) * double(m[8 + column]) + double(m[12 + column]);
    return {sum[0], sum[1], sum[2], sum[3]};
}

// As OpenGL's viewport puts clip space onto pixels.
QPointF pixelOf(const Clip &clip)
{
    return {(clip.x / clip.w + 1.0) / 2.0 * ViewSize.width(),
            (1.0 - clip.y / clip.w) / 2.0 * ViewSize.height()};
}

Camera frontCamera(bool orthographic)
{
    Camera camera;
    camera.SetViewportSize(ViewSize);
    camera.SetSceneBounds(UnitBox);
    camera.SetOrthographic(orthographic);
    camera.Frame(UnitBox);
    return camera;
}

void expectNear(const Vector &a, const Vector &b, float tolerance)
{
    EXPECT_LE((a - b).Length(), tolerance)
        << a.x << ' ' << a.y << ' ' << a.z << " / " << b.x << ' ' << b.y << ' ' << b.z;
}

class BothProjections : public testing::TestWithParam<bool>
{};

} // namespace

INSTANTIATE_TEST_SUITE_P(Camera, BothProjections, testing::Bool());

TEST(Camera, aPointLandsWhereSimilarTrianglesSay)
{
    const Camera camera = frontCamera(false);
    // Half the view's height is 0.28 of the distance.
    const double distance = double(camera.Eye().z);
    const ScreenPoint screen = camera.Project({0.5f, 0.25f, 0.75f});
    const double pixels = 360.0 / (0.28 * (distance - 0.75));
    ASSERT_TRUE(screen.seen);
    EXPECT_NEAR(screen.pixel.x(), 640.0 + 0.5 * pixels, 1e-3);
    EXPECT_NEAR(screen.pixel.y(), 360.0 - 0.25 * pixels, 1e-3);
    EXPECT_NEAR(screen.depth, distance - 0.75, 1e-6);
}

TEST(Camera, anOrthographicPointDoesNotMoveWithDepth)
{
    const Camera camera = frontCamera(true);
    const ScreenPoint nearer = camera.Project({0.5f, 0.25f, 0.75f});
    const ScreenPoint farther = camera.Project({0.5f, 0.25f, -0.75f});
    EXPECT_LE(apart(nearer.pixel, farther.pixel), 1e-9);
    EXPECT_NEAR(farther.depth - nearer.depth, 1.5, 1e-9);
    EXPECT_NEAR(nearer.pixel.x() - 640.0, 0.5 / camera.PixelSize(1.0), 1e-9);
}

TEST(Camera, standardViewsLookAlongTheAxes)
{
    struct Row
    {
        StandardView view;
        Vector right, up, back;
    };
    const Row rows[] = {{StandardView::Front, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                        {StandardView::Back, {-1, 0, 0}, {0, 1, 0}, {0, 0, -1}},
                        {StandardView::Right, {0, 0, -1}, {0, 1, 0}, {1, 0, 0}},
                        {StandardView::Left, {0, 0, 1}, {0, 1, 0}, {-1, 0, 0}},
                        {StandardView::Top, {1, 0, 0}, {0, 0, -1}, {0, 1, 0}},
                        {StandardView::Bottom, {1, 0, 0}, {0, 0, 1}, {0, -1, 0}}};
    Camera camera = frontCamera(false);
    camera.Orbit(0.7, 0.3);
    for (const Row &row : rows) {
        camera.LookFrom(row.view);
        expectNear(camera.RightAxis(), row.right, 1e-6f);
        expectNear(camera.UpAxis(), row.up, 1e-6f);
        expectNear(camera.BackAxis(), row.back, 1e-6f);
        const ScreenPoint middle = camera.Project({0, 0, 0});
        EXPECT_LE(apart(middle.pixel, {640.0, 360.0}), 1e-6);
    }
}

TEST_P(BothProjections, theMatricesAgreeWithTheFormulas)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const auto box = randomBox(random);
        const Camera camera = cameraAt(box, GetParam(), random);
        const Vector point = randomPointIn(box, random);
        const ScreenPoint screen = camera.Project(point);
        ASSERT_TRUE(screen.seen);
        EXPECT_LE(apart(pixelOf(clipOf(camera, point)), screen.pixel), 0.02);
    }
}

TEST_P(BothProjections, unprojectingAProjectedPointGivesItBack)
{
    std::mt19937 random(testSeed());
    double worst = 0.0;
    for (int round = 0; round < 1000; ++round) {
        const auto box = randomBox(random);
        const Camera camera = cameraAt(box, GetParam(), random);
        const QPointF pixel = randomPixel(random);
        const double depth = camera.PivotDepth() * double(randomBetween(random, 0.7f, 1.3f));
        const ScreenPoint again = camera.Project(camera.PointAt(pixel, depth));
        if (!again.seen)
            continue;
        EXPECT_NEAR(again.depth, depth, 1e-6 * depth);
        worst = std::max(worst, apart(again.pixel, pixel));
    }
    EXPECT_LE(worst, 1e-3);
    EXPECT_GT(worst, 0.0);
}

TEST_P(BothProjections, theRayThroughAPixelMeetsWhatIsSeenThere)
{
    std::mt19937 random(testSeed());
    double worst = 0.0;
    for (int round = 0; round < 1000; ++round) {
        const auto box = randomBox(random);
        const Camera camera = cameraAt(box, GetParam(), random);
        const Vector point = randomPointIn(box, random);
        const ViewRay ray = camera.RayThrough(camera.Project(point).pixel);
        ASSERT_NEAR(ray.direction.Length(), 1.0f, 1e-6f);
        const Vector way = point - ray.origin;
        ASSERT_GT(Dot(way, ray.direction), 0.0f);
        const double miss = double(((way)&ray.direction).Length());
        worst = std::max(worst, miss / camera.PixelSize(camera.DepthOf(point)));
    }
    EXPECT_LE(worst, 0.01); // pixels; rays are floats
}

TEST_P(BothProjections, framingShowsAllCornersAndFillsTheView)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 500; ++round) {
        const auto box = randomBox(random);
        const Camera camera = cameraAt(box, GetParam(), random);
        double filled = 0.0;
        for (int i = 0; i < 8; ++i) {
            const Vector corner(i & 1 ? box.maximum.x : box.minimum.x,
                                i & 2 ? box.maximum.y : box.minimum.y,
                                i & 4 ? box.maximum.z : box.minimum.z);
            const ScreenPoint screen = camera.Project(corner);
            ASSERT_TRUE(screen.seen);
            ASSERT_TRUE(QRectF(QPointF(), ViewSize).contains(screen.pixel));
            filled = std::max({filled, std::abs(screen.pixel.x() - 640.0) / 640.0,
                               std::abs(screen.pixel.y() - 360.0) / 360.0});
        }
        EXPECT_NEAR(filled, 0.9, 0.02);
        EXPECT_LE(apart(camera.Project(box.Center()).pixel, {640.0, 360.0}), 1e-3);
    }
}

TEST_P(BothProjections, allOfTheSceneLiesBetweenTheClippingPlanes)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 500; ++round) {
        const auto box = randomBox(random);
        Camera camera = cameraAt(box, GetParam(), random);
        camera.Zoom(double(randomBetween(random, 1.0f, 100.0f)));
        for (int i = 0; i < 8; ++i) {
            const Vector corner(i & 1 ? box.maximum.x : box.minimum.x,
                                i & 2 ? box.maximum.y : box.minimum.y,
                                i & 4 ? box.maximum.z : box.minimum.z);
            for (const double lift : {0.0, 3.0}) {
                const Clip clip = clipOf(camera, corner, lift);
                EXPECT_LT(std::abs(clip.z / clip.w), 1.0);
            }
        }
    }
}

TEST(Camera, depthStaysFineFarAwayAndCloseBy)
{
    Camera camera = frontCamera(false);
    for (int step = 0; step < 60; ++step) {
        EXPECT_GT(camera.NearDepth(), 0.0);
        EXPECT_LE(camera.NearDepth(),
                  0.06 * camera.PivotDepth() + std::max(0.0, camera.PivotDepth() - 1.0));
        if (camera.PivotDepth() > 0.05) {
            EXPECT_LE(camera.FarDepth() / camera.NearDepth(), 1001.0);
        }
        // What 24 bits can tell apart at the pivot, in scene units: under a pixel's size.
        const double depth = camera.PivotDepth();
        const double slope = camera.FarDepth() * camera.NearDepth()
                             / (camera.FarDepth() - camera.NearDepth()) / (depth * depth);
        EXPECT_LT(1.0 / slope / double(1 << 24), camera.PixelSize(depth));
        camera.Zoom(0.85);
    }
}

TEST_P(BothProjections, aLiftChangesTheDepthAlone)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 300; ++round) {
        const auto box = randomBox(random);
        const Camera camera = cameraAt(box, GetParam(), random);
        const Vector point = randomPointIn(box, random);
        const Clip plain = clipOf(camera, point);
        const Clip lifted = clipOf(camera, point, 3.0);
        EXPECT_LE(apart(pixelOf(plain), pixelOf(lifted)), 1e-6);
        // The lifted point has the depth of one that is three pixels nearer, and no more.
        const double size = camera.PixelSize(camera.DepthOf(point));
        const auto nearer = [&](double pixels) {
            const Clip clip = clipOf(camera, point + camera.BackAxis() * float(pixels * size));
            return clip.z / clip.w;
        };
        EXPECT_LT(lifted.z / lifted.w, nearer(2.5));
        EXPECT_GT(lifted.z / lifted.w, nearer(3.5));
    }
}

TEST(Camera, aPointBehindTheEyeIsNotSeen)
{
    const Camera camera = frontCamera(false);
    EXPECT_FALSE(camera.Project(camera.Eye() + Vector(0.1f, 0.1f, 1.0f)).seen);
    EXPECT_FALSE(camera.Project(camera.Eye()).seen);
}

TEST(Camera, strangeInputIsIgnored)
{
    Camera camera = frontCamera(false);
    const Matrix view = camera.ViewMatrix();
    const double nan = std::nan("");
    const float infinity = std::numeric_limits<float>::infinity();
    camera.Orbit(nan, 0.0);
    camera.Orbit(0.0, nan);
    camera.Pan({nan, 1.0});
    camera.Pan({1e300, 1e300});
    camera.Zoom(nan);
    camera.Zoom(0.0);
    camera.Zoom(-2.0);
    EXPECT_FALSE(camera.SetPivot({float(nan), 0.0f, 0.0f}));
    EXPECT_FALSE(camera.SetPivot({infinity, 0.0f, 0.0f}));
    EXPECT_FALSE(camera.SetPivot(camera.Eye() + Vector(0.0f, 0.0f, 1.0f)));
    camera.Frame({});
    camera.SetViewportSize({0.0, 100.0});
    EXPECT_EQ(camera.ViewMatrix(), view);
    EXPECT_EQ(camera.ViewportSize(), ViewSize);
}

TEST(Camera, aSinglePointCanBeFramed)
{
    for (const bool orthographic : {false, true}) {
        Camera camera;
        camera.SetViewportSize(ViewSize);
        camera.SetOrthographic(orthographic);
        const auto box = boxBetween({5, 5, 5}, {5, 5, 5});
        camera.SetSceneBounds(box);
        camera.Frame(box);
        const ScreenPoint screen = camera.Project({5, 5, 5});
        EXPECT_TRUE(screen.seen);
        EXPECT_LE(apart(screen.pixel, {640.0, 360.0}), 1e-6);
        const Clip clip = clipOf(camera, {5, 5, 5});
        EXPECT_LT(std::abs(clip.z / clip.w), 1.0);
    }
}
