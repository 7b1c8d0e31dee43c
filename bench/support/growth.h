// SPDX-License-Identifier: MIT
#pragma once

#include <map>

//! The exponent e of the best fit y = c * n^e through points (n, y), by least squares on
//! logarithms. Points below lowest, and without a positive y, do not count. Not a number for fewer
//! than two.
double growthExponent(const std::map<int, double> &points, int lowest = 0);

//! What y is to be expected at n, from the two largest points below it; 0 without a point.
double expectedAt(const std::map<int, double> &points, int n);
