// SPDX-License-Identifier: MIT
#include "cli/shading.h"

#include <gtest/gtest.h>

#include <cmath>

using orvane::Vector;

namespace {

// How a colour looks to people without the long or the medium cones.
// F. Vienot, H. Brettel, J. Mollon: Digital video colourmaps for checking the legibility of
// displays by dichromats, 1999.
Vector withoutLongCones(const Vector &c)
{
    const float redGreen = 0.11238f * c.x + 0.88762f * c.y;
    return {redGreen, redGreen, 0.00401f * c.x - 0.00401f * c.y + c.z};
}

Vector withoutMediumCones(const Vector &c)
{
    const float redGreen = 0.29275f * c.x + 0.70725f * c.y;
    return {redGreen, redGreen, -0.02234f * c.x + 0.02234f * c.y + c.z};
}

// CIE 1976 L*a*b* of a linear sRGB colour, white point D65.
Vector perceived(const Vector &c)
{
    const auto root = [](float t) {
        return t > 0.008856f ? std::cbrt(t) : 7.787f * t + 16.0f / 116.0f;
    };
    const float x = root((0.4124f * c.x + 0.3576f * c.y + 0.1805f * c.z) / 0.9505f);
    const float y = root(0.2126f * c.x + 0.7152f * c.y + 0.0722f * c.z);
    const float z = root((0.0193f * c.x + 0.1192f * c.y + 0.9505f * c.z) / 1.089f);
    return {116.0f * y - 16.0f, 500.0f * (x - y), 200.0f * (y - z)};
}

// About 2 can just be told apart side by side.
float difference(const Vector &a, const Vector &b)
{
    return (perceived(a) - perceived(b)).Length();
}

Material white(float contrast)
{
    return {Vector(1, 1, 1), contrast};
}

} // namespace

TEST(Shading, facesOfEachKindLookDifferentToEverybody)
{
    for (int i = 0; i < CornerClassCount; ++i) {
        for (int j = 0; j < i; ++j) {
            const Vector a = linearColour(cornerColour(CornerClass(i)));
            const Vector b = linearColour(cornerColour(CornerClass(j)));
            EXPECT_GT(difference(a, b), 20.0f) << i << " " << j;
            EXPECT_GT(difference(withoutLongCones(a), withoutLongCones(b)), 20.0f) << i << " " << j;
            EXPECT_GT(difference(withoutMediumCones(a), withoutMediumCones(b)), 20.0f)
                << i << " " << j;
        }
    }
}

TEST(Shading, cornersMakeTheClass)
{
    EXPECT_EQ(cornerClass(3), Triangle);
    EXPECT_EQ(cornerClass(4), Quad);
    EXPECT_EQ(cornerClass(5), Pentagon);
    EXPECT_EQ(cornerClass(6), ManyCorners);
    EXPECT_EQ(cornerClass(100000), ManyCorners);
}

TEST(Shading, lightComesFromTheUpperLeft)
{
    const int upperLeft = qGreen(litColour({-0.5f, 0.6f, 0.6f}, white(0.9f)));
    const int lowerRight = qGreen(litColour({0.5f, -0.6f, 0.6f}, white(0.9f)));
    EXPECT_GT(upperLeft, lowerRight + 60);
}

TEST(Shading, withoutContrastThereIsOnlyTheColour)
{
    const Material material{linearColour(QColor(10, 120, 240)), 0.0f};
    for (const Vector &normal : {Vector(0, 0, 1), Vector(1, 0, 0), Vector(0, -1, 0)}) {
        const QColor lit(litColour(normal, material));
        EXPECT_NEAR(lit.red(), 10, 2);
        EXPECT_NEAR(lit.green(), 120, 1);
        EXPECT_NEAR(lit.blue(), 240, 1);
    }
}

TEST(Shading, anUnknownNormalIsLitAsIfItFacedTheEye)
{
    EXPECT_EQ(litColour(Vector(), white(1.0f)), litColour({0, 0, 1}, white(1.0f)));
    EXPECT_EQ(litColour({0, 0, 50}, white(1.0f)), litColour({0, 0, 1}, white(1.0f)));
}
