// SPDX-License-Identifier: MIT
#include "cli/camera.h"
#include "cli/goodangle.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/subdivisionlevel.h>

#include <QScopedPointer>

#include <gtest/gtest.h>

#include <cmath>

using orvane::Vector;

namespace {

const QRectF Frame(20.0, 10.0, 300.0, 200.0);

QVector<Vector> randomPoints(std::mt19937 &random, int count)
{
    QVector<Vector> points;
    for (int i = 0; i < count; ++i)
        points.append(randomVector(random, 5.0f) + Vector(40.0f, -7.0f, 3.0f));
    return points;
}

Surface surfaceOfNew(orvane::SubdivisionLevel *mesh)
{
    const QScopedPointer<orvane::SubdivisionLevel> owner(mesh);
    return surfaceOf(*mesh, SurfaceLook::Facets);
}

} // namespace

TEST(Camera, thePointsJustFillTheFrame)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 50; ++round) {
        const QVector<Vector> points = randomPoints(random, 30);
        Vector direction = randomVector(random);
        direction.z += 1.5f;
        const Camera camera(direction, points, Frame);
        QRectF filled;
        for (const Vector &point : points) {
            const ScreenPoint screen = camera.project(point);
            ASSERT_TRUE(screen.isSeen());
            ASSERT_TRUE(Frame.adjusted(-0.01, -0.01, 0.01, 0.01).contains(screen.x, screen.y));
            filled |= QRectF(screen.x - 0.01, screen.y - 0.01, 0.02, 0.02);
        }
        EXPECT_TRUE(std::abs(filled.width() - Frame.width()) < 0.1
                    || std::abs(filled.height() - Frame.height()) < 0.1);
    }
}

TEST(Camera, upIsUpAndRightIsRight)
{
    const QVector<Vector> points{{-1, -1, 0}, {1, -1, 0}, {0, 1, 0}};
    const Camera camera({0.0f, 0.3f, 1.0f}, points, Frame);
    const ScreenPoint middle = camera.project({0, 0, 0});
    EXPECT_LT(camera.project({0, 0.5f, 0}).y, middle.y);
    EXPECT_GT(camera.project({0.5f, 0, 0}).x, middle.x);
    EXPECT_NEAR(camera.project({0, 0.5f, 0}).x, middle.x, 1e-3);
    EXPECT_GT(camera.project({0, 0, 0.5f}).inverseDepth, middle.inverseDepth);
}

TEST(Camera, whatIsBehindTheEyeIsNotSeen)
{
    const Camera camera({0.0f, 0.0f, 1.0f}, {{-1, -1, 0}, {1, 1, 0}}, Frame);
    EXPECT_TRUE(camera.project({0, 0, 0}).isSeen());
    EXPECT_FALSE(camera.project({0, 0, 1000}).isSeen());
    EXPECT_FALSE(camera.project({1e12f, 0, 0}).isSeen());
}

TEST(Camera, aSinglePointIsInTheMiddle)
{
    const Camera camera({0.5f, 0.3f, 1.0f}, {{7, 8, 9}}, Frame);
    const ScreenPoint screen = camera.project({7, 8, 9});
    ASSERT_TRUE(screen.isSeen());
    EXPECT_NEAR(screen.x, Frame.center().x(), 1e-3);
    EXPECT_NEAR(screen.y, Frame.center().y(), 1e-3);
}

TEST(Camera, aSurfaceFacesTheEyeOrTurnsAway)
{
    const Camera camera({0.0f, 0.0f, 1.0f}, {{-1, -1, 0}, {1, 1, 0}}, Frame);
    EXPECT_NEAR(camera.facing({0, 0, 0}, {0, 0, 1}), 1.0f, 1e-5f);
    EXPECT_NEAR(camera.facing({0, 0, 0}, {0, 0, -1}), -1.0f, 1e-5f);
    EXPECT_NEAR(camera.facing({0, 0, 0}, {0, 1, 0}), 0.0f, 1e-5f);
}

TEST(GoodAngle, withoutSurfacesIsFromSlightlyAboveInFront)
{
    const Vector angle = goodAngle({}, {});
    EXPECT_NEAR(angle.Length(), 1.0f, 1e-5f);
    EXPECT_GT(angle.y, 0.1f);
    EXPECT_LT(angle.y, 0.6f);
    EXPECT_GT(angle.z, 0.0f);
}

TEST(GoodAngle, lyingSheetsAreSeenFromAbove)
{
    orvane::SubdivisionLevel *sheet = gridOfQuads(4, 4);
    for (int vertex = 0; vertex < sheet->VertexCount(); ++vertex) {
        const Vector p = sheet->VertexPosition(vertex);
        sheet->SetVertexPosition(vertex, {p.x, 0.0f, -p.y});
    }
    EXPECT_GT(goodAngle({surfaceOfNew(sheet)}, {}).y, 0.6f);
}

TEST(GoodAngle, surfacesAreSeenFromWhereNothingHidesThem)
{
    const Surface hider = surfaceOfNew(sphere(24, 32));
    for (const Vector &place : {Vector(-1, 0, 0), Vector(1, 0, 0), Vector(0, 0, -1)}) {
        orvane::SubdivisionLevel *patch = cube(0.3f);
        for (int vertex = 0; vertex < patch->VertexCount(); ++vertex)
            patch->SetVertexPosition(vertex, patch->VertexPosition(vertex) + place);
        EXPECT_GT(Dot(goodAngle({surfaceOfNew(patch)}, {hider}), place), 0.3f)
            << place.x << " " << place.z;
    }
}

TEST(GoodAngle, surfacesWithoutExtentAreHarmless)
{
    orvane::SubdivisionLevel *mesh = singleTriangle(0.0f);
    const Vector angle = goodAngle({surfaceOfNew(mesh)}, {});
    EXPECT_NEAR(angle.Length(), 1.0f, 1e-5f);
}
