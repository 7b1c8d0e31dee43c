// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/placement.h>

#include <gtest/gtest.h>

#include <QBuffer>

#include <cmath>
#include <limits>

using orvane::Dot;
using orvane::Matrix;
using orvane::Placement;
using orvane::Vector;

TEST(Placement, leavesEveryBitWhereItIsAtFirst)
{
    const Placement placement;
    const Vector odd(0.1f, -1e-30f, 3e30f);
    EXPECT_TRUE(placement.IsIdentity());
    EXPECT_EQ(placement.ToWorld(odd), odd);
    EXPECT_EQ(placement.ToLocal(odd), odd);
}

TEST(Placement, takesLocalPointsToTheWorldAndBack)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 300; ++i) {
        Placement placement;
        ASSERT_TRUE(placement.SetWorldMatrix(randomPlacement(random)));
        EXPECT_FALSE(placement.IsIdentity());
        const Vector p = randomVector(random, 4.0f);
        EXPECT_LT((placement.ToLocal(placement.ToWorld(p)) - p).Length(), 1e-4f) << "round " << i;
    }
}

TEST(Placement, keepsNormalsSquareToTheSurface)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 300; ++i) {
        Placement placement;
        placement.SetWorldMatrix(randomPlacement(random));
        const Vector along = orvane::Normalized(randomVector(random));
        const Vector across = orvane::Normalized(randomVector(random));
        const Vector normal = orvane::Normalized(along & across);
        const Vector inWorld = placement.NormalToWorld(normal);
        const Vector origin = placement.ToWorld({});
        EXPECT_NEAR(inWorld.Length(), 1.0f, 1e-6f) << "round " << i;
        EXPECT_NEAR(Dot(inWorld, placement.ToWorld(along) - origin), 0.0f, 2e-5f) << "round " << i;
        EXPECT_NEAR(Dot(inWorld, placement.ToWorld(across) - origin), 0.0f, 2e-5f) << "round " << i;
        EXPECT_GT(Dot(inWorld, placement.ToWorld(normal) - origin), 0.0f) << "round " << i;
        EXPECT_LT((placement.NormalToLocal(inWorld) - normal).Length(), 1e-4f) << "round " << i;
    }
}

TEST(Placement, leavesAZeroNormalZero)
{
    Placement placement;
    EXPECT_EQ(placement.NormalToWorld({}), Vector());
    placement.SetWorldMatrix(Matrix::Scaling({2, 3, 4}));
    EXPECT_EQ(placement.NormalToWorld({}), Vector());
    EXPECT_EQ(placement.NormalToLocal({}), Vector());
}

TEST(Placement, isTheIdentityAgainWhenSetBack)
{
    Placement placement;
    placement.SetWorldMatrix(Matrix::Scaling({2, 2, 2}));
    placement.SetWorldMatrix(Matrix());
    EXPECT_TRUE(placement.IsIdentity());
    EXPECT_EQ(placement.ToLocal({1, 2, 3}), Vector(1, 2, 3));
}

TEST(Placement, refusesAMatrixThatFlattensSpace)
{
    Placement placement;
    const Matrix good = Matrix::Scaling({2, 2, 2});
    placement.SetWorldMatrix(good);
    Matrix nan;
    nan.SetElement(0, 1, std::nanf(""));
    Matrix endless;
    endless.SetElement(3, 0, std::numeric_limits<float>::infinity());
    LogCatcher log;
    for (const Matrix &bad : {Matrix::Scaling({1, 1, 0}), Matrix::Scaling({0, 0, 0}), nan, endless})
        EXPECT_FALSE(placement.SetWorldMatrix(bad));
    EXPECT_EQ(log.count(), 4);
    EXPECT_EQ(placement.WorldMatrix(), good);
}

TEST(Placement, isReadAsItWasWritten)
{
    Placement placement;
    placement.SetWorldMatrix(Matrix::Translation({1, 2, 3}));
    placement.SetName(QStringLiteral("place"));
    Placement copy;
    ASSERT_TRUE(placement.CopyTo(&copy));
    EXPECT_EQ(copy.WorldMatrix(), placement.WorldMatrix());
    EXPECT_EQ(copy.ToLocal({1, 2, 3}), Vector());
    EXPECT_EQ(copy.Name(), QStringLiteral("place"));
}

TEST(Placement, keepsItsMatrixWhenTheBytesStopShort)
{
    Placement placement;
    placement.SetWorldMatrix(Matrix::Translation({1, 2, 3}));
    QBuffer empty;
    empty.open(QIODevice::ReadOnly);
    orvane::Stream stream(&empty, orvane::Stream::Reading);
    LogCatcher log;
    placement.Serialize(stream);
    EXPECT_EQ(placement.WorldMatrix(), Matrix::Translation({1, 2, 3}));
    EXPECT_EQ(log.count(), 1);
}
