// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/ring.h"

#include <algorithm>

namespace {

double triangleArea(const orvane::Vector &a, const orvane::Vector &b, const orvane::Vector &c)
{
    return 0.5
           * ((double(b.x) - double(a.x)) * (double(c.y) - double(a.y))
              - (double(c.x) - double(a.x)) * (double(b.y) - double(a.y)));
}

} // namespace

double ringArea(const QVector<int> &ring, const QVector<orvane::Vector> &positions)
{
    double area = 0.0;
    forEachSide(ring, [&](int a, int b) {
        area += triangleArea(positions[ring.first()], positions[a], positions[b]);
    });
    return area;
}

bool turnsOver(const QVector<int> &ring, const QVector<orvane::Vector> &positions)
{
    double sum = 0.0;
    int previous = ring.isEmpty() ? 0 : ring.last();
    forEachSide(ring, [&](int corner, int next) {
        sum += triangleArea(positions[previous], positions[corner], positions[next]);
        previous = corner;
    });
    return sum < 0.0;
}

double longestSide(const QVector<int> &ring, const QVector<orvane::Vector> &positions)
{
    double longest = 0.0;
    forEachSide(ring, [&](int a, int b) {
        longest = std::max(longest, double((positions[b] - positions[a]).Length()));
    });
    return longest;
}
