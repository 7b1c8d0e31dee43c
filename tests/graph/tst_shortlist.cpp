// SPDX-License-Identifier: MIT
#include "graph/shortlist.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

namespace {

using Numbers = ShortList<int, 4>;

} // namespace

TEST(ShortList, anyOperationsInAnyOrderDoWhatAListDoes)
{
    std::mt19937 random(testSeed());
    Numbers list;
    QList<int> expected;
    for (int step = 0; step < 20000; ++step) {
        const int entry = int(random() % 10u);
        switch (random() % 5u) {
        case 0:
        case 1:
            list.append(entry);
            expected.append(entry);
            break;
        case 2:
            list.prepend(entry);
            expected.prepend(entry);
            break;
        default:
            // Now and then it runs empty; mostly it passes to and fro between near and far.
            for (int i = entry % 3; i >= 0 && !expected.isEmpty(); --i) {
                const int at = int(random() % unsigned(expected.size()));
                ASSERT_EQ(list.takeAt(at), expected.takeAt(at));
            }
        }
        ASSERT_TRUE(list == expected) << "after step " << step;
        ASSERT_EQ(list.indexOf(entry), expected.indexOf(entry));
        ASSERT_EQ(list.value(entry - 3), expected.value(entry - 3));
        ASSERT_EQ(QList<int>(list), expected);
    }
}

TEST(ShortList, aCopyIsAListOfItsOwn)
{
    for (int size : {0, 1, 4, 5, 100}) {
        Numbers list;
        for (int i = 0; i < size; ++i)
            list.append(i);
        Numbers copy = list;
        copy.append(7);
        EXPECT_EQ(list.size(), size);
        list = copy;
        EXPECT_TRUE(list == copy);
        const Numbers &self = list;
        list = self;
        EXPECT_TRUE(list == copy);
        copy = {3, 2};
        EXPECT_EQ(copy.toVector(), (QVector<int>{3, 2}));
        EXPECT_EQ(list.last(), 7);
    }
}
