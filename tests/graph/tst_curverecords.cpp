// SPDX-License-Identifier: MIT
#include "graph/curverecords.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

QVector<int> crossingsOf(const CurveRecords &records, int curve)
{
    QVector<int> numbers;
    for (int i = 0; i < records.size(curve); ++i)
        numbers.append(records.crossing(curve, i));
    return numbers;
}

// Each one put before the first of a greater parameter.
QVector<int> insertedOneByOne(const QVector<Crossing> &crossings, int curve)
{
    QVector<int> numbers;
    QVector<float> parameters;
    const auto insert = [&](int number, float parameter) {
        const auto place = std::upper_bound(parameters.begin(), parameters.end(), parameter);
        numbers.insert(int(place - parameters.begin()), number);
        parameters.insert(place, parameter);
    };
    for (int i = 0; i < crossings.size(); ++i) {
        if (crossings[i].curveA == curve)
            insert(i, crossings[i].parameterA);
        if (crossings[i].curveB == curve)
            insert(i, crossings[i].parameterB);
    }
    return numbers;
}

} // namespace

TEST(CurveRecords, crossingsGoByParameterAndEqualOnesInTheOrderTheyCame)
{
    const CurveRecords records(
        {3, 6}, {{0, 2.0f, 1, 5.0f}, {0, 1.0f, 1, 4.0f}, {0, 2.0f, 1, 3.0f}, {0, 0.5f, 1, 5.0f}});
    EXPECT_EQ(crossingsOf(records, 0), (QVector<int>{3, 1, 0, 2}));
    EXPECT_EQ(crossingsOf(records, 1), (QVector<int>{2, 1, 0, 3}));
}

TEST(CurveRecords, aCrossingOfACurveWithItselfIsThereTwice)
{
    const CurveRecords records({2, 9, 0}, {{1, 0.5f, 1, 7.5f}, {1, 2.5f, 1, 4.5f}});
    EXPECT_TRUE(crossingsOf(records, 0).isEmpty());
    EXPECT_EQ(crossingsOf(records, 1), (QVector<int>{0, 1, 1, 0}));
    EXPECT_TRUE(crossingsOf(records, 2).isEmpty());
}

TEST(CurveRecords, aParameterThatIsRoundedUpToTheLastSampleStandsBehindAllOthers)
{
    const CurveRecords records({2, 2}, {{0, 2.0f, 1, 1.0f}, {0, 0.5f, 1, 2.0f}});
    EXPECT_EQ(crossingsOf(records, 0), (QVector<int>{1, 0}));
    EXPECT_EQ(crossingsOf(records, 1), (QVector<int>{0, 1}));
}

// Many samples with few crossings each, and few with many.
TEST(CurveRecords, randomOnesStandAsIfInsertedOneByOne)
{
    std::mt19937 random(testSeed());
    const int curves = 7;
    for (const unsigned samples : {2u, 13u, 900u}) {
        const auto parameter = [&random, samples] {
            const float whole = float(random() % samples);
            return random() % 2 == 0 ? whole : whole + randomBetween(random, 0.0f, 1.0f);
        };
        QVector<Crossing> crossings;
        for (int i = 0; i < 2000; ++i) {
            const int a = int(random() % unsigned(curves));
            const int b = a + int(random() % unsigned(curves - a));
            crossings.append({a, parameter(), b, parameter()});
        }
        const CurveRecords records(QVector<int>(curves, int(samples)), crossings);
        for (int k = 0; k < curves; ++k)
            EXPECT_EQ(crossingsOf(records, k), insertedOneByOne(crossings, k));
    }
}
