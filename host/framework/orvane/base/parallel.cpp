// SPDX-License-Identifier: MIT
#include <orvane/base/parallel.h>

#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace orvane {

namespace {

int processorCount()
{
    return qMax(1, int(std::thread::hardware_concurrency())); // 0: the system does not tell
}

} // namespace

int threadsFor(qint64 amount, qint64 least)
{
    return int(qBound<qint64>(1, amount / least, processorCount()));
}

void inParallel(int parts, const std::function<void(int)> &work)
{
    std::atomic<int> next{0};
    const auto takeParts = [&next, parts, &work] {
        for (int part = next++; part < parts; part = next++)
            work(part);
    };
    std::vector<std::thread> helpers;
    try {
        for (int i = 1; i < qMin(parts, processorCount()); ++i)
            helpers.emplace_back(takeParts);
    } catch (const std::system_error &) {
        // The system has no more threads: those that there are take all parts.
    }
    takeParts();
    for (std::thread &helper : helpers)
        helper.join();
}

} // namespace orvane
