// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <QBuffer>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Stream;
using orvane::SurfacePoint;
using orvane::Vector;

namespace {

QByteArray written(OrvaneCurve *curve)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Stream stream(&buffer, Stream::Writing);
    curve->Serialize(stream);
    return buffer.data();
}

} // namespace

class CurveOnMesh : public SceneCleaner
{};

TEST(Curve, startsOpenVisibleAndEmpty)
{
    const OrvaneCurve curve;
    EXPECT_FALSE(curve.Closed());
    EXPECT_FALSE(curve.Selected());
    EXPECT_FALSE(curve.IsHidden());
    EXPECT_EQ(curve.PointCount(), 0);
    EXPECT_EQ(curve.PointAt(0).position, Vector());
    EXPECT_EQ(curve.Geometry(), nullptr);
}

TEST(Curve, keepsItsPointsInOrder)
{
    OrvaneCurve curve;
    curve.AppendPoint(CurvePoint(Vector(1, 0, 0)));
    curve.AppendPoint(CurvePoint(Vector(2, 0, 0)));
    EXPECT_EQ(curve.PointCount(), 2);
    EXPECT_EQ(curve.PointAt(1).position, Vector(2, 0, 0));
    EXPECT_EQ(curve.PointAt(2).position, Vector());
    EXPECT_EQ(curve.PointAt(-1).position, Vector());
    curve.SetPoints({});
    EXPECT_EQ(curve.PointCount(), 0);
}

TEST(Curve, isUsableWhenVisibleAndOfTwoPoints)
{
    OrvaneCurve curve;
    EXPECT_FALSE(curve.IsUsable());
    curve.AppendPoint(CurvePoint(Vector(1, 0, 0)));
    EXPECT_FALSE(curve.IsUsable());
    curve.AppendPoint(CurvePoint(Vector(2, 0, 0)));
    EXPECT_TRUE(curve.IsUsable());
    curve.SetHidden(true);
    EXPECT_FALSE(curve.IsUsable());
}

TEST(Curve, closesAThousandthShortOfItsFirstPoint)
{
    OrvaneCurve curve;
    for (const Vector &p : {Vector(1, 1, 1), Vector(5, 1, 1), Vector(1, 1001, 1)})
        curve.AppendPoint(CurvePoint(p));
    const Vector closing = curve.ClosingPosition();
    EXPECT_NEAR(closing.x, 1.0f, 1e-5f);
    EXPECT_NEAR(closing.y, 2.0f, 1e-3f);
    EXPECT_NEAR(closing.z, 1.0f, 1e-5f);
}

TEST(Curve, countsItsClosingPointAsNotDrawn)
{
    OrvaneCurve curve;
    for (int i = 0; i < 4; ++i)
        curve.AppendPoint(CurvePoint(Vector(float(i), 0, 0)));
    EXPECT_EQ(curve.DrawnPointCount(), 4);
    curve.SetClosed(true);
    EXPECT_EQ(curve.DrawnPointCount(), 3);
    curve.SetPoints({CurvePoint(Vector())});
    EXPECT_EQ(curve.DrawnPointCount(), 1) << "one point closes nothing";
}

TEST_F(CurveOnMesh, liesOnTheGeometryOfItsFirstPointOnAMesh)
{
    orvane::Geometry *first = addToScene(singleTriangle());
    orvane::Geometry *second = addToScene(singleQuad());
    OrvaneCurve curve;
    curve.AppendPoint(CurvePoint(Vector(9, 9, 9)));
    EXPECT_EQ(curve.Geometry(), nullptr);
    curve.AppendPoint(CurvePoint(SurfacePoint(*second->CurrentLevel(), 0, 0, 0)));
    curve.AppendPoint(CurvePoint(SurfacePoint(*first->CurrentLevel(), 0, 0, 0)));
    EXPECT_EQ(curve.Geometry(), second);
    orvane::Kernel()->Scene()->RemoveGeometry(second);
    EXPECT_EQ(curve.Geometry(), first) << "a point bound to none is passed over";
    delete second;
}

TEST_F(CurveOnMesh, isReadAsItWasWritten)
{
    orvane::Geometry *geometry = addToScene(singleTriangle());
    for (int flags = 0; flags < 8; ++flags) {
        OrvaneCurve curve;
        curve.SetName(QStringLiteral("stroke"));
        curve.SetClosed(flags & 1);
        curve.SetSelected(flags & 2);
        curve.SetHidden(flags & 4);
        curve.AppendPoint(CurvePoint(Vector(1, 2, 3)));
        curve.AppendPoint(CurvePoint(SurfacePoint(*geometry->CurrentLevel(), 0, 0.5f, 0.25f)));
        OrvaneCurve copy;
        copy.AppendPoint(CurvePoint(Vector(7, 7, 7)));
        ASSERT_TRUE(curve.CopyTo(&copy));
        EXPECT_EQ(written(&copy), written(&curve));
        EXPECT_EQ(copy.Name(), QStringLiteral("stroke"));
        EXPECT_EQ(copy.Closed(), bool(flags & 1));
        EXPECT_EQ(copy.Selected(), bool(flags & 2));
        EXPECT_EQ(copy.IsHidden(), bool(flags & 4));
        ASSERT_EQ(copy.PointCount(), 2);
        EXPECT_EQ(copy.PointAt(0).position, Vector(1, 2, 3));
        EXPECT_EQ(copy.PointAt(1).surfacePoint.Mesh(), geometry->CurrentLevel());
        EXPECT_EQ(copy.PointAt(1).surfacePoint.U(), 0.5f);
    }
}

TEST_F(CurveOnMesh, survivesDamagedBytes)
{
    std::mt19937 random(testSeed());
    LogCatcher quiet;
    orvane::Geometry *geometry = addToScene(singleTriangle());
    OrvaneCurve curve;
    for (int i = 0; i < 3; ++i)
        curve.AppendPoint(CurvePoint(SurfacePoint(*geometry->CurrentLevel(), 0, 0.5f, 0.25f)));
    const QByteArray bytes = written(&curve);
    for (int round = 0; round < 5000; ++round) {
        QByteArray damaged = bytes.left(int(random() % unsigned(bytes.size() + 1)));
        for (unsigned hits = random() % 4; hits > 0 && !damaged.isEmpty(); --hits)
            damaged[int(random() % unsigned(damaged.size()))] = char(random());
        QBuffer buffer(&damaged);
        buffer.open(QIODevice::ReadOnly);
        Stream stream(&buffer, Stream::Reading);
        OrvaneCurve copy;
        copy.Serialize(stream);
        ASSERT_LE(copy.PointCount(), 3) << "round " << round;
        for (const CurvePoint &point : copy.Points())
            point.surfacePoint.WorldNormal();
        copy.Geometry();
    }
}
