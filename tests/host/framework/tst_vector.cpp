// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include <orvane/math/vector.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

using orvane::Dot;
using orvane::Normalized;
using orvane::Vector;

static_assert(sizeof(Vector) == 3 * sizeof(float), "buffers of vectors are buffers of floats");
static_assert(std::is_trivially_copyable<Vector>::value, "streams write vectors as bytes");

TEST(Vector, startsAtZero)
{
    EXPECT_EQ(Vector(), Vector(0, 0, 0));
}

TEST(Vector, addsSubtractsAndScalesByComponent)
{
    EXPECT_EQ(Vector(1, 2, 3) + Vector(10, 20, 30), Vector(11, 22, 33));
    EXPECT_EQ(Vector(1, 2, 3) - Vector(10, 20, 30), Vector(-9, -18, -27));
    EXPECT_EQ(-Vector(1, -2, 3), Vector(-1, 2, -3));
    EXPECT_EQ(Vector(1, 2, 3) * 2.0f, Vector(2, 4, 6));
    EXPECT_EQ(Vector(1, 2, 3) / 2.0f, Vector(0.5f, 1.0f, 1.5f));
}

TEST(Vector, hasTheLengthOfAPythagoreanBox)
{
    EXPECT_EQ(Vector(2, 3, 6).Length(), 7.0f);
    EXPECT_EQ(Vector(2, 3, 6).LengthSquared(), 49.0f);
}

TEST(Vector, normalisesInPlaceToLengthOne)
{
    Vector v(0, -3, 4);
    EXPECT_EQ(&v.Normalize(), &v);
    EXPECT_NEAR(v.y, -0.6f, 1e-7f);
    EXPECT_NEAR(v.z, 0.8f, 1e-7f);
}

TEST(Vector, staysZeroWhenAZeroVectorIsNormalised)
{
    EXPECT_EQ(Normalized(Vector()), Vector());
}

TEST(Vector, crossesRightHanded)
{
    EXPECT_EQ(Vector(1, 0, 0) & Vector(0, 1, 0), Vector(0, 0, 1));
    EXPECT_EQ(Vector(0, 1, 0) & Vector(0, 0, 1), Vector(1, 0, 0));
    EXPECT_EQ(Vector(0, 0, 1) & Vector(1, 0, 0), Vector(0, 1, 0));
}

TEST(Vector, hasACrossProductSquareToBothFactors)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 1000; ++i) {
        const Vector a = randomVector(random);
        const Vector b = randomVector(random);
        const Vector cross = a & b;
        EXPECT_NEAR(Dot(cross, a), 0.0f, 1e-6f) << "round " << i;
        EXPECT_NEAR(Dot(cross, b), 0.0f, 1e-6f) << "round " << i;
        // Lagrange's identity
        EXPECT_NEAR(cross.LengthSquared() + Dot(a, b) * Dot(a, b),
                    a.LengthSquared() * b.LengthSquared(), 1e-5f)
            << "round " << i;
    }
}

TEST(Vector, isFiniteOnlyWhenEachComponentIs)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(Vector(1, 2, 3).IsFinite());
    EXPECT_FALSE(Vector(infinity, 2, 3).IsFinite());
    EXPECT_FALSE(Vector(1, -infinity, 3).IsFinite());
    EXPECT_FALSE(Vector(1, 2, nan).IsFinite());
}

TEST(Vector, differsFromItselfWhenItIsNotANumber)
{
    const Vector v(std::nanf(""), 0, 0);
    EXPECT_TRUE(v != v);
    EXPECT_FALSE(v == v);
}
