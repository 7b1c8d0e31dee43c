// SPDX-License-Identifier: MIT
#include "tests/support/shapes.h"

#include <orvane/math/matrix.h>

#include <gtest/gtest.h>

#include <limits>

using orvane::Matrix;
using orvane::Vector;

namespace {

const float QuarterTurn = 1.57079633f; // radians

void expectNear(const Vector &actual, const Vector &expected, float tolerance)
{
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

} // namespace

TEST(Matrix, startsAsTheIdentity)
{
    EXPECT_TRUE(Matrix().IsIdentity());
    EXPECT_EQ(Matrix().Transform({1, 2, 3}, 1.0f), Vector(1, 2, 3));
}

TEST(Matrix, sendsTheAxesToItsRows)
{
    Matrix matrix;
    matrix.SetRow(0, {1, 2, 3});
    matrix.SetRow(1, {4, 5, 6});
    matrix.SetRow(2, {7, 8, 10});
    matrix.SetRow(3, {11, 12, 13});
    EXPECT_EQ(matrix.Transform({1, 0, 0}, 0.0f), Vector(1, 2, 3));
    EXPECT_EQ(matrix.Transform({0, 1, 0}, 0.0f), Vector(4, 5, 6));
    EXPECT_EQ(matrix.Transform({0, 0, 1}, 0.0f), Vector(7, 8, 10));
    EXPECT_EQ(matrix.Transform({0, 0, 0}, 1.0f), Vector(11, 12, 13));
}

TEST(Matrix, keepsTheFourthElementOfARowThatIsSet)
{
    Matrix matrix;
    matrix.SetElement(1, 3, 5.0f);
    matrix.SetRow(1, {1, 2, 3});
    EXPECT_EQ(matrix.Element(1, 3), 5.0f);
    EXPECT_EQ(matrix.Row(1), Vector(1, 2, 3));
}

TEST(Matrix, liesInMemoryRowAfterRow)
{
    Matrix matrix;
    matrix.SetElement(2, 1, 9.0f);
    EXPECT_EQ(matrix.Data()[9], 9.0f);
}

TEST(Matrix, movesPointsButNotDirections)
{
    const Matrix shift = Matrix::Translation({1, 2, 3});
    EXPECT_EQ(shift.Transform({5, 5, 5}, 1.0f), Vector(6, 7, 8));
    EXPECT_EQ(shift.Transform({5, 5, 5}, 0.0f), Vector(5, 5, 5));
}

TEST(Matrix, turnsCounterClockwiseAboutEachAxis)
{
    expectNear(Matrix::Rotation({0, 0, 2}, QuarterTurn).Transform({1, 0, 0}, 1), {0, 1, 0}, 1e-6f);
    expectNear(Matrix::Rotation({1, 0, 0}, QuarterTurn).Transform({0, 1, 0}, 1), {0, 0, 1}, 1e-6f);
    expectNear(Matrix::Rotation({0, 3, 0}, QuarterTurn).Transform({0, 0, 1}, 1), {1, 0, 0}, 1e-6f);
}

TEST(Matrix, appliesAProductFromLeftToRight)
{
    const Matrix scaleThenShift = Matrix::Scaling({2, 2, 2}) * Matrix::Translation({1, 0, 0});
    EXPECT_EQ(scaleThenShift.Transform({1, 1, 1}, 1.0f), Vector(3, 2, 2));
    const Matrix shiftThenScale = Matrix::Translation({1, 0, 0}) * Matrix::Scaling({2, 2, 2});
    EXPECT_EQ(shiftThenScale.Transform({1, 1, 1}, 1.0f), Vector(4, 2, 2));
}

TEST(Matrix, isUndoneByItsInverse)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 500; ++i) {
        const Matrix there = randomPlacement(random);
        Matrix back = there;
        ASSERT_TRUE(back.Invert()) << "round " << i;
        const Vector p = randomVector(random, 5.0f);
        SCOPED_TRACE(i);
        expectNear(back.Transform(there.Transform(p, 1.0f), 1.0f), p, 1e-4f);
    }
}

TEST(Matrix, keepsAnInverseOfExactFractionsExact)
{
    Matrix matrix = Matrix::Scaling({2, 4, 8}) * Matrix::Translation({1, 2, 3});
    ASSERT_TRUE(matrix.Invert());
    EXPECT_EQ(matrix, Matrix::Translation({-1, -2, -3}) * Matrix::Scaling({0.5f, 0.25f, 0.125f}));
}

TEST(Matrix, invertsWhenTheFirstPivotIsZero)
{
    Matrix swap;
    swap.SetRow(0, {0, 1, 0});
    swap.SetRow(1, {1, 0, 0});
    const Matrix before = swap;
    ASSERT_TRUE(swap.Invert());
    EXPECT_EQ(swap, before);
}

TEST(Matrix, staysAsItIsWhenItHasNoInverse)
{
    Matrix flat = Matrix::Scaling({1, 0, 1});
    EXPECT_FALSE(flat.Invert());
    EXPECT_EQ(flat, Matrix::Scaling({1, 0, 1}));
}

TEST(Matrix, hasNoInverseWhenAnElementIsNotANumber)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            Matrix matrix;
            matrix.SetElement(row, column, nan);
            EXPECT_FALSE(matrix.Invert()) << row << ", " << column;
        }
    }
}

TEST(Matrix, hasNoInverseWhenThatLeavesTheRangeOfFloats)
{
    Matrix tiny = Matrix::Scaling({1e-42f, 1, 1});
    EXPECT_FALSE(tiny.Invert());
    EXPECT_EQ(tiny, Matrix::Scaling({1e-42f, 1, 1}));
}
