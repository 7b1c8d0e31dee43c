// SPDX-License-Identifier: MIT
#include "mesh/bitrow.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

const int Bits = 300;

testing::AssertionResult isEqual(const BitRow &row, const std::vector<bool> &plain)
{
    for (int i = 0; i < Bits; ++i) {
        if (row.has(i) != plain[size_t(i)])
            return testing::AssertionFailure() << "bit " << i;
        if ((row.word(i / BitRow::WordBits) >> (i % BitRow::WordBits) & 1u) != plain[size_t(i)])
            return testing::AssertionFailure() << "word of bit " << i;
    }
    return testing::AssertionSuccess();
}

} // namespace

TEST(BitRow, allBitsAreClearAtFirst)
{
    EXPECT_TRUE(isEqual(BitRow(Bits), std::vector<bool>(Bits)));
    EXPECT_FALSE(BitRow(Bits).hasAny(0, Bits));
}

TEST(BitRow, anEmptyRangeChangesNothing)
{
    BitRow row(Bits);
    for (int place : {0, 63, 64, 65, Bits})
        row.setRange(place, place);
    EXPECT_FALSE(row.hasAny(0, Bits));
}

TEST(BitRow, bitsAndRangesAreThoseOfAPlainListOfTruths)
{
    std::mt19937 random(testSeed());
    BitRow row(Bits);
    std::vector<bool> plain(Bits);
    for (int step = 0; step < 5000; ++step) {
        const int place = int(random() % unsigned(Bits));
        const int end = place + int(random() % unsigned(Bits - place + 1));
        const bool value = random() % 2u == 0u;
        if (step % 2 == 0) {
            value ? row.set(place) : row.clear(place);
            plain[size_t(place)] = value;
        } else {
            value ? row.setRange(place, end) : row.clearRange(place, end);
            std::fill(plain.begin() + place, plain.begin() + end, value);
        }
        ASSERT_TRUE(isEqual(row, plain));
        ASSERT_EQ(row.hasAny(place, end),
                  std::find(plain.begin() + place, plain.begin() + end, true)
                      != plain.begin() + end);
    }
}
