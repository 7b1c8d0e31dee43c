// SPDX-License-Identifier: MIT
#include "bench/peers/cgalpeer.h"

#include "bench/support/processorclock.h"

#include <CGAL/Arr_segment_traits_2.h>
#include <CGAL/Arrangement_2.h>
#include <CGAL/Exact_predicates_exact_constructions_kernel.h>

#include <set>

namespace {

using Kernel = CGAL::Exact_predicates_exact_constructions_kernel;
using Traits = CGAL::Arr_segment_traits_2<Kernel>;
using Arrangement = CGAL::Arrangement_2<Traits>;

// One point object per place, as a sweep likes it: equal handles are equal without looking.
std::vector<Traits::X_monotone_curve_2> segmentsOf(const Polylines &lines)
{
    std::vector<Traits::X_monotone_curve_2> segments;
    for (const std::vector<orvane::Vector> &line : lines) {
        std::vector<Kernel::Point_2> points;
        for (const orvane::Vector &v : line)
            points.emplace_back(double(v.x), double(v.y));
        for (size_t i = 0; i + 1 < points.size(); ++i) {
            if (line[i].x != line[i + 1].x || line[i].y != line[i + 1].y)
                segments.emplace_back(points[i], points[i + 1]);
        }
    }
    return segments;
}

qint64 placeCount(const Polylines &lines)
{
    std::set<std::pair<float, float>> places;
    for (const std::vector<orvane::Vector> &line : lines) {
        for (const orvane::Vector &v : line)
            places.insert({v.x, v.y});
    }
    return qint64(places.size());
}

} // namespace

PeerRun runCgal(const Polylines &lines)
{
    const std::vector<Traits::X_monotone_curve_2> segments = segmentsOf(lines);
    Arrangement arrangement;
    ProcessorClock clock;
    CGAL::insert(arrangement, segments.begin(), segments.end());
    PeerRun run;
    run.seconds = clock.lap();
    // Every vertex that is no point of a line is a crossing.
    run.crossings = qint64(arrangement.number_of_vertices()) - placeCount(lines);
    run.faces =
        qint64(arrangement.number_of_faces()) - qint64(arrangement.number_of_unbounded_faces());
    return run;
}
