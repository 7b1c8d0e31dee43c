// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <gtest/gtest.h>

#include <QVector>

#include <algorithm>
#include <limits>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

TEST(BoundingBox, startsEmpty)
{
    const AxisAlignedBoundingBox box;
    EXPECT_TRUE(box.IsEmpty());
    EXPECT_EQ(box.Diagonal(), 0.0f);
    EXPECT_EQ(box.minimum.y, std::numeric_limits<float>::infinity());
    EXPECT_EQ(box.maximum.y, -std::numeric_limits<float>::infinity());
}

TEST(BoundingBox, ofOnePointIsThatPoint)
{
    AxisAlignedBoundingBox box;
    box.Extend({1, -2, 3});
    EXPECT_FALSE(box.IsEmpty());
    EXPECT_EQ(box.minimum, Vector(1, -2, 3));
    EXPECT_EQ(box.maximum, Vector(1, -2, 3));
    EXPECT_EQ(box.Diagonal(), 0.0f);
}

TEST(BoundingBox, hasCentreSizeAndDiagonal)
{
    AxisAlignedBoundingBox box;
    box.Extend({1, 3, 6});
    box.Extend({-1, 0, 0});
    EXPECT_EQ(box.Center(), Vector(0, 1.5f, 3));
    EXPECT_EQ(box.Size(), Vector(2, 3, 6));
    EXPECT_EQ(box.Diagonal(), 7.0f);
}

TEST(BoundingBox, isTheSmallestThatHoldsEveryPoint)
{
    std::mt19937 random(testSeed());
    QVector<float> x;
    QVector<float> y;
    QVector<float> z;
    AxisAlignedBoundingBox box;
    for (int i = 0; i < 1000; ++i) {
        const Vector p = randomVector(random, 100.0f);
        box.Extend(p);
        x.append(p.x);
        y.append(p.y);
        z.append(p.z);
    }
    const auto low = [](const QVector<float> &v) {
        return *std::min_element(v.begin(), v.end());
    };
    const auto high = [](const QVector<float> &v) {
        return *std::max_element(v.begin(), v.end());
    };
    EXPECT_EQ(box.minimum, Vector(low(x), low(y), low(z)));
    EXPECT_EQ(box.maximum, Vector(high(x), high(y), high(z)));
}

TEST(BoundingBox, growsOnEverySideAndShrinksAgain)
{
    AxisAlignedBoundingBox box;
    box.Extend({0, 0, 0});
    box.Extend({2, 2, 2});
    box.Grow(0.5f);
    EXPECT_EQ(box.minimum, Vector(-0.5f, -0.5f, -0.5f));
    EXPECT_EQ(box.maximum, Vector(2.5f, 2.5f, 2.5f));
    box.Grow(-0.5f);
    EXPECT_EQ(box.minimum, Vector(0, 0, 0));
    EXPECT_EQ(box.maximum, Vector(2, 2, 2));
}

TEST(BoundingBox, isEmptyWhenItShrinksPastItself)
{
    AxisAlignedBoundingBox box;
    box.Extend({0, 0, 0});
    box.Grow(-1.0f);
    EXPECT_TRUE(box.IsEmpty());
    EXPECT_EQ(box.Diagonal(), 0.0f);
}

TEST(BoundingBox, takesNoNoticeOfACoordinateThatIsNotANumber)
{
    AxisAlignedBoundingBox box;
    box.Extend({0, 0, 0});
    box.Extend({5, std::numeric_limits<float>::quiet_NaN(), 5});
    EXPECT_EQ(box.maximum, Vector(5, 0, 5));
    EXPECT_EQ(box.minimum, Vector(0, 0, 0));
}
