// SPDX-License-Identifier: MIT
#include "graph/curverecords.h"
#include "graph/nearmisses.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const float NotANumber = std::numeric_limits<float>::quiet_NaN();

bool isNear(float a, float b)
{
    return std::fabs(a - b) <= 1e-3f;
}

bool isWithin(float parameter, float middle)
{
    return middle - 1e-3f <= parameter && parameter <= middle + 1e-3f;
}

bool isSamePair(const Crossing &a, const Crossing &b)
{
    return a.curveA == b.curveA && a.curveB == b.curveB;
}

// Which of the meetings are to be named, by a look at all that went before and all crossings.
QVector<int> namedByRule(const QVector<Crossing> &meetings, const QVector<Crossing> &crossings)
{
    QVector<int> named;
    for (int i = 0; i < meetings.size(); ++i) {
        const Crossing &m = meetings[i];
        const bool isKnown = std::any_of(named.cbegin(), named.cend(), [&](int earlier) {
            const Crossing &other = meetings[earlier];
            return isSamePair(other, m) && isNear(other.parameterA, m.parameterA)
                   && isNear(other.parameterB, m.parameterB);
        });
        const bool isMadeUpFor =
            std::any_of(crossings.cbegin(), crossings.cend(), [&](const Crossing &crossing) {
                return isSamePair(crossing, m) && isWithin(crossing.parameterA, m.parameterA)
                       && isWithin(crossing.parameterB, m.parameterB);
            });
        if (!isKnown && !isMadeUpFor)
            named.append(i);
    }
    return named;
}

// On a segment of its own, at an end of it, or all but there.
Crossing randomCrossing(std::mt19937 &random)
{
    const auto parameter = [&random] {
        const float ends[] = {0.0f, 1.0f, 1e-5f, 4e-4f, 9e-4f, 0.9995f, 0.5f, 0.4995f, 0.501f};
        return float(random() % 5) + ends[random() % 9] + randomBetween(random, -2e-4f, 2e-4f);
    };
    const int curve = int(random() % 3);
    return {curve, parameter(), curve + int(random() % 2), parameter()};
}

QVector<Crossing> randomCrossings(std::mt19937 &random, int count)
{
    QVector<Crossing> crossings;
    for (int i = 0; i < count; ++i)
        crossings.append(randomCrossing(random));
    return crossings;
}

} // namespace

TEST(NearMisses, anEndIsMetOnlyByAFractionOfItAndOneOnTheOtherSegment)
{
    EXPECT_TRUE(NearMisses::isOnEnd(0.0f, 0.5f));
    EXPECT_TRUE(NearMisses::isOnEnd(0.5f, 1.0f));
    EXPECT_TRUE(NearMisses::isOnEnd(1.0f, 0.0f));
    EXPECT_TRUE(NearMisses::isOnEnd(1.000005f, -0.000005f)) << "give or take rounding";
    EXPECT_FALSE(NearMisses::isOnEnd(0.5f, 0.5f));
    EXPECT_FALSE(NearMisses::isOnEnd(0.0f, 1.1f));
    EXPECT_FALSE(NearMisses::isOnEnd(-0.1f, 0.0f));
    EXPECT_FALSE(NearMisses::isOnEnd(1.0001f, 0.5f));
    EXPECT_FALSE(NearMisses::isOnEnd(-1.0f, -1.0f)) << "what parallel lines answer";
    EXPECT_FALSE(NearMisses::isOnEnd(NotANumber, 0.0f));
    EXPECT_FALSE(NearMisses::isOnEnd(0.0f, NotANumber));
}

TEST(NearMisses, aPlaceMetFromBothSegmentsAtThePointIsNamedOnce)
{
    NearMisses misses;
    misses.note({0, 1.0f, 1, 3.5f}, {1, 2, 3});
    misses.note({0, 1.0f, 1, 3.5f}, {1, 2, 3});
    misses.note({0, 1.0f, 2, 3.5f}, {1, 2, 3}); // another curve through the same point
    misses.note({0, 4.0f, 1, 5.5f}, {4, 5, 6});
    misses.note({1, 1.0f, 2, 3.5f}, {7, 8, 9});
    const QVector<PointOnCurve> found = misses.unresolved({});
    ASSERT_EQ(found.size(), 4);
    EXPECT_EQ(found[0].curveA, 0);
    EXPECT_EQ(found[0].curveB, 1);
    EXPECT_EQ(found[0].place, orvane::Vector(1, 2, 3));
    EXPECT_EQ(found[1].curveB, 2);
    EXPECT_EQ(found[2].place, orvane::Vector(4, 5, 6));
    EXPECT_EQ(found[3].curveA, 1);
}

TEST(NearMisses, aCrossingRightNextToItMakesUpForAMissOnlyWhenItIsOnBothCurves)
{
    NearMisses misses;
    misses.note({0, 1.0f, 1, 3.5f}, {});
    EXPECT_EQ(misses.unresolved({{0, 0.9999f, 2, 3.5f}}).size(), 1) << "it is with a third curve";
    EXPECT_EQ(misses.unresolved({{0, 0.9999f, 1, 3.6f}}).size(), 1) << "it is elsewhere on one";
    EXPECT_TRUE(misses.unresolved({{0, 0.9999f, 1, 3.5005f}}).isEmpty());
}

TEST(NearMisses, whatIsNamedIsWhatALookAtAllOfThemWouldName)
{
    std::mt19937 random(testSeed());
    int namedInAll = 0;
    for (int scene = 0; scene < 2000; ++scene) {
        const QVector<Crossing> meetings = randomCrossings(random, int(random() % 60));
        const QVector<Crossing> crossings = randomCrossings(random, int(random() % 20));
        NearMisses misses;
        for (int i = 0; i < meetings.size(); ++i)
            misses.note(meetings[i], orvane::Vector(float(i), 0.0f, 0.0f));
        const QVector<PointOnCurve> found = misses.unresolved(crossings);
        const QVector<int> named = namedByRule(meetings, crossings);
        ASSERT_EQ(found.size(), named.size()) << "scene " << scene;
        for (int i = 0; i < named.size(); ++i) {
            ASSERT_EQ(found[i].place.x, float(named[i])) << "scene " << scene;
            ASSERT_EQ(found[i].curveA, meetings[named[i]].curveA);
            ASSERT_EQ(found[i].curveB, meetings[named[i]].curveB);
        }
        namedInAll += named.size();
    }
    EXPECT_GT(namedInAll, 10000);
}
