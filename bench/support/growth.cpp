// SPDX-License-Identifier: MIT
#include "bench/support/growth.h"

#include <cmath>
#include <limits>

double growthExponent(const std::map<int, double> &points, int lowest)
{
    double count = 0.0;
    double sumX = 0.0;
    double sumY = 0.0;
    double sumXX = 0.0;
    double sumXY = 0.0;
    for (const auto &[n, y] : points) {
        if (n < lowest || !(y > 0.0))
            continue;
        const double logN = std::log(double(n));
        count += 1.0;
        sumX += logN;
        sumY += std::log(y);
        sumXX += logN * logN;
        sumXY += logN * std::log(y);
    }
    if (count < 2.0)
        return std::numeric_limits<double>::quiet_NaN();
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

double expectedAt(const std::map<int, double> &points, int n)
{
    auto last = points.lower_bound(n);
    if (last == points.begin())
        return 0.0;
    --last;
    double exponent = 1.0;
    if (last != points.begin()) {
        const auto before = std::prev(last);
        exponent = growthExponent({*before, *last});
    }
    return last->second * std::pow(double(n) / last->first, std::isnan(exponent) ? 1.0 : exponent);
}
