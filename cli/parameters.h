// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"

//! The options in the operation's units, converted as the settings dialog and tool convert them.
struct Parameters
{
    explicit Parameters(const BuildOptions &options)
        : maximumEdges(options.maximumEdges),
          mergeDistance(options.mergePercent / 100.0f),
          intersectionTolerance(options.tolerancePercent / 100.0f),
          overrunTolerance(float(double(options.overrunPercent) * 0.01)),
          useSelfIntersections(options.useSelfIntersections)
    {}

    int maximumEdges;
    float mergeDistance;         // fraction of the average edge length
    float intersectionTolerance; // fraction of the average edge length
    float overrunTolerance;      // fraction of an open curve's end segment
    bool useSelfIntersections;
};
