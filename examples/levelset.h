// SPDX-License-Identifier: MIT
#pragma once

#include "examples/trianglemesh.h"

#include <functional>
#include <vector>

//! A stroke in the making: its points in order, in scene units.
struct Stroke
{
    std::vector<orvane::Vector> points;
    bool closed = false;
};

//! Where a smooth function of space is zero on the mesh: one stroke for each connected line.
//! A zero at a vertex counts as just above.
std::vector<Stroke> traceZero(const TriangleMesh &mesh,
                              const std::function<float(const orvane::Vector &)> &function);
