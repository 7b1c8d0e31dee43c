// SPDX-License-Identifier: MIT
#include "graph/numberset.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <set>

TEST(NumberSet, numbersLeaveAscendingAndOnce)
{
    std::mt19937 random(testSeed());
    NumberSet numbers;
    for (int round = 0; round < 300; ++round) {
        const int least = int(random() % 3) * 70000;
        const int size = 1 + int(random() % 20000);
        numbers.setRange(least, least + size - 1);
        for (int time = 0; time < 3; ++time) { // what was taken is gone
            const int first = least + int(random() % unsigned(size));
            std::set<int> expected;
            for (int i = int(random() % 200); i > 0; --i) {
                const int number = least + int(random() % unsigned(size));
                numbers.add(number);
                if (number >= first)
                    expected.insert(number);
            }
            QVector<int> taken{-1};
            numbers.takeFrom(first, taken);
            ASSERT_EQ(taken.takeFirst(), -1);
            ASSERT_EQ(taken, QVector<int>(expected.begin(), expected.end())) << "round " << round;
        }
    }
}

TEST(NumberSet, anEmptyOneGivesNothing)
{
    NumberSet numbers;
    QVector<int> taken;
    numbers.takeFrom(0, taken);
    numbers.setRange(0, -1);
    numbers.takeFrom(0, taken);
    EXPECT_TRUE(taken.isEmpty());
}
