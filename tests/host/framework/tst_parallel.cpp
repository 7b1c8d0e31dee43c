// SPDX-License-Identifier: MIT
#include <orvane/base/parallel.h>

#include <gtest/gtest.h>

#include <QtGlobal>

#include <atomic>
#include <memory>
#include <thread>

using orvane::inParallel;
using orvane::threadsFor;

TEST(Parallel, littleWorkIsForOneThread)
{
    EXPECT_EQ(threadsFor(0, 100), 1);
    EXPECT_EQ(threadsFor(199, 100), 1);
    EXPECT_EQ(threadsFor(1000000, 1), int(qMax(1u, std::thread::hardware_concurrency())));
    EXPECT_EQ(threadsFor(Q_INT64_C(10000000000), 100),
              int(qMax(1u, std::thread::hardware_concurrency())));
}

TEST(Parallel, everyPartIsDoneOnce)
{
    for (int parts : {0, 1, 2, 3, 1000}) {
        const std::unique_ptr<std::atomic<int>[]> done(new std::atomic<int>[size_t(parts) + 1]());
        inParallel(parts, [&](int part) { ++done[size_t(part)]; });
        for (int part = 0; part < parts; ++part)
            EXPECT_EQ(done[size_t(part)], 1) << part << " of " << parts;
        EXPECT_EQ(done[size_t(parts)], 0);
    }
}

TEST(Parallel, allIsDoneWhenItComesBack)
{
    int last[8] = {};
    for (int round = 1; round <= 100; ++round) {
        inParallel(8, [&](int part) { last[part] = round; });
        for (int value : last)
            ASSERT_EQ(value, round);
    }
}

TEST(Parallel, onePartStaysOnTheThreadThatAsks)
{
    std::thread::id worker;
    inParallel(1, [&](int) { worker = std::this_thread::get_id(); });
    EXPECT_EQ(worker, std::this_thread::get_id());
}
