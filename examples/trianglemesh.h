// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <array>
#include <vector>

//! Triangles counter-clockwise seen from outside.
struct TriangleMesh
{
    std::vector<orvane::Vector> positions; // scene units
    std::vector<std::array<int, 3>> triangles;
};
