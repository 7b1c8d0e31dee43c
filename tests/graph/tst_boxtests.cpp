// SPDX-License-Identifier: MIT
#include "graph/segmentcrossing.h"
#include "graph/sortedboxes.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <limits>

using orvane::AxisAlignedBoundingBox;
using orvane::Vector;

namespace {

const float NotANumber = std::numeric_limits<float>::quiet_NaN();
const float Infinity = std::numeric_limits<float>::infinity();

float randomSide(std::mt19937 &random)
{
    const float odd[] = {NotANumber, Infinity, -Infinity, 0.0f, -0.0f, 3e38f, 1e-40f, 1.0f};
    return random() % 30 == 0 ? odd[random() % 8] : randomBetween(random, -1.0f, 1.0f);
}

// Some are inside out, some have a side that is no finite number.
AxisAlignedBoundingBox randomBox(std::mt19937 &random)
{
    AxisAlignedBoundingBox box;
    box.minimum = {randomSide(random), randomSide(random), randomSide(random)};
    const float size = random() % 20 == 0 ? -0.1f : 0.8f;
    box.maximum = box.minimum + Vector(randomBetween(random, 0.0f, size), size, size);
    if (random() % 20 == 0)
        box.maximum.y = randomSide(random);
    return snappedBox(box);
}

BoxList randomBoxes(std::mt19937 &random, int count, Lanes lanes = widestLanes())
{
    BoxList boxes(count, lanes);
    for (int i = 0; i < count; ++i)
        boxes.set(i, randomBox(random));
    return boxes;
}

QVector<int> overlappingByRule(const BoxList &boxes, int first, int last,
                               const AxisAlignedBoundingBox &box)
{
    QVector<int> numbers;
    for (int i = first; i < last; ++i) {
        if (snappedBoxesOverlap(boxes.at(i), box))
            numbers.append(i);
    }
    return numbers;
}

class BoxTests : public testing::TestWithParam<Lanes>
{};

} // namespace

TEST_P(BoxTests, anyNumberOfBoxesIsAnsweredAsOneByOne)
{
    if (!hasLanes(GetParam()))
        GTEST_SKIP() << "not on this processor";
    std::mt19937 random(testSeed());
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        const int count = int(random() % 50);
        const BoxList boxes = randomBoxes(random, count, GetParam());
        const AxisAlignedBoundingBox box = randomBox(random);
        BoxSpan spans[3];
        QVector<int> expected;
        for (BoxSpan &span : spans) {
            span.first = int(random() % unsigned(count + 1));
            span.last = span.first + int(random() % unsigned(count - span.first + 1));
            expected += overlappingByRule(boxes, span.first, span.last, box);
        }
        QVector<int> hits(3 * count + BoxLanes);
        hits.resize(boxes.overlapping(spans, 3, box, hits.data()));
        ASSERT_EQ(hits, expected) << "round " << round;
        found += hits.size();
    }
    EXPECT_GT(found, 1000);
}

INSTANTIATE_TEST_SUITE_P(EachWidth, BoxTests,
                         testing::Values(Lanes::One, Lanes::Four, Lanes::Eight, Lanes::Sixteen));

TEST(BoxList, theBoxAroundSomeOverlapsWhateverOneOfThemDoes)
{
    std::mt19937 random(testSeed());
    int met = 0;
    for (int round = 0; round < 5000; ++round) {
        const BoxList boxes = randomBoxes(random, 16);
        const AxisAlignedBoundingBox around = boxes.around(0, boxes.size());
        ASSERT_TRUE(isNumber(around));
        const AxisAlignedBoundingBox box = randomBox(random);
        const bool isAnyMet = !overlappingByRule(boxes, 0, boxes.size(), box).isEmpty();
        ASSERT_TRUE(!isAnyMet || snappedBoxesOverlap(around, box)) << "round " << round;
        met += isAnyMet ? 1 : 0;
    }
    EXPECT_GT(met, 1000);
}

TEST(SortedBoxes, theyFindWhatALookAtAllFindsInTheSameOrder)
{
    std::mt19937 random(testSeed());
    SortedBoxes sorted;
    QVector<int> found;
    int foundInAll = 0;
    for (int round = 0; round < 300; ++round) {
        // As the runs are: no side is a NaN.
        BoxList boxes = randomBoxes(random, int(random() % 300));
        QVector<AxisAlignedBoundingBox> all;
        QVector<int> numbers;
        for (int i = 0; i < boxes.size(); ++i) {
            all.append(boxes.around(i, i + 1));
            boxes.set(i, all.last());
            if (random() % 4 != 0)
                numbers.append(i);
        }
        sorted.assign(all, numbers);
        for (int question = 0; question < 20; ++question) {
            const AxisAlignedBoundingBox box = randomBoxes(random, 1).around(0, 1);
            const int first = int(random() % 300);
            sorted.overlapping(box, first, found);
            QVector<int> expected;
            for (int number : overlappingByRule(boxes, 0, boxes.size(), box)) {
                if (number >= first && numbers.contains(number))
                    expected.append(number);
            }
            ASSERT_EQ(found, expected) << "round " << round;
            foundInAll += found.size();
        }
    }
    EXPECT_GT(foundInAll, 5000);
}
