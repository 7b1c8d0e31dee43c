// SPDX-License-Identifier: MIT
#include "graph/crossingbatch.h"
#include "graph/segmentcrossing.h"
#include "tests/graph/plaincrossing.h"
#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <iostream>
#include <limits>
#include <vector>

using crossinglane::Answer;
using orvane::Vector;

namespace {

using Pair = std::array<Vector, 4>; // a0, a1, b0, b1

// Not the sign and payload of a NaN: nothing reads them.
bool isSame(float a, float b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof(float)) == 0;
}

bool isSame(const Vector &a, const Vector &b)
{
    return isSame(a.x, b.x) && isSame(a.y, b.y) && isSame(a.z, b.z);
}

float oddNumber(std::mt19937 &random)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float numbers[] = {std::numeric_limits<float>::quiet_NaN(),
                             infinity,
                             -infinity,
                             3e38f,
                             -3e38f,
                             1e-40f,
                             0.0f,
                             -0.0f};
    return numbers[random() % 8];
}

// Flat or not, large or small, near or far, touching, parallel, without length, no numbers.
Pair randomPair(std::mt19937 &random)
{
    const float scales[] = {1.0f, 1e-3f, 1e4f, 1e-20f, 1e18f, 1e-30f};
    const float scale = scales[random() % 4 == 0 ? random() % 6 : 0];
    const Vector shift = random() % 8 == 0 ? randomVector(random, 100.0f * scale) : Vector();
    const bool isFlat = random() % 3 == 0;
    Pair pair;
    for (Vector &v : pair) {
        v = randomVector(random, scale);
        v.z = isFlat ? 0.0f : v.z * 0.05f;
        v += shift;
    }
    switch (random() % 16) {
    case 0:
        pair[2] = pair[0]; // a common end
        break;
    case 1:
        pair[3] = pair[2] + (pair[1] - pair[0]); // parallel
        break;
    case 2:
        pair[1] = pair[0]; // no length
        break;
    case 3:
        pair[2] = (pair[0] + pair[1]) * 0.5f; // an end on the other
        break;
    case 4:
        pair[3] = pair[2] + (pair[1] - pair[0]) + randomVector(random, 1e-6f * scale);
        break;
    case 5:
        pair[random() % 4].y = oddNumber(random);
        break;
    default:
        break;
    }
    return pair;
}

bool isAnsweredTheSame(const Pair &pair, const Answer &answer)
{
    Vector point;
    float ta = 0.0f;
    float tb = 0.0f;
    const bool isCrossing = plainSegmentsCross(pair[0], pair[1], pair[2], pair[3], point, ta, tb);
    return isCrossing == answer.isCrossing() && isSame(ta, answer.ta) && isSame(tb, answer.tb)
           && (!isCrossing || isSame(point, answer.place));
}

class CrossingBatchTest : public testing::TestWithParam<Lanes>
{};

} // namespace

// QUILLMESH_PAIRS: how many pairs to try.
TEST_P(CrossingBatchTest, randomPairsAreAnsweredAsByThePlainRuleBitForBit)
{
    if (!hasLanes(GetParam()))
        GTEST_SKIP() << "not on this processor";
    std::mt19937 random(testSeed());
    CrossingBatch batch(GetParam());
    std::vector<Pair> pairs(CrossingBatch::Capacity);
    const int wanted = repetitions("QUILLMESH_PAIRS", 500000);
    int crossings = 0;
    for (int tried = 0; tried < wanted; tried += batch.size()) {
        const std::size_t size = 1 + random() % pairs.size();
        batch.clear();
        for (std::size_t i = 0; i < size; ++i) {
            pairs[i] = randomPair(random);
            batch.add(&pairs[i][0], &pairs[i][2]);
        }
        batch.test();
        for (int i = 0; i < batch.size(); ++i) {
            const Answer answer = batch.answer(i);
            ASSERT_TRUE(isAnsweredTheSame(pairs[std::size_t(i)], answer)) << "pair " << tried + i;
            crossings += answer.isCrossing() ? 1 : 0;
        }
    }
    std::cout << crossings << " crossings of " << wanted << " pairs" << std::endl;
    EXPECT_GT(crossings, wanted / 20);
}

INSTANTIATE_TEST_SUITE_P(EachWidth, CrossingBatchTest, testing::Values(Lanes::One, Lanes::Eight));

TEST(SegmentCrossing, oneByOneTheyAreAnsweredAsByThePlainRuleToo)
{
    std::mt19937 random(testSeed());
    for (int tried = 0; tried < 200000; ++tried) {
        const Pair pair = randomPair(random);
        Answer answer;
        const bool isCrossing =
            segmentsCross(pair[0], pair[1], pair[2], pair[3], answer.place, answer.ta, answer.tb);
        ASSERT_EQ(isCrossing, answer.isCrossing());
        ASSERT_TRUE(isAnsweredTheSame(pair, answer)) << "pair " << tried;
    }
}
