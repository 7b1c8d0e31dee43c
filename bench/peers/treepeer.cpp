// SPDX-License-Identifier: MIT
#include "bench/peers/treepeer.h"

#include "bench/support/processorclock.h"
#include "graph/segmentcrossing.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

namespace {

namespace bg = boost::geometry;
using Point = bg::model::point<float, 3, bg::cs::cartesian>;
using Box = bg::model::box<Point>;
using Entry = std::pair<Box, int>;
using Tree = bg::index::rtree<Entry, bg::index::quadratic<16>>;
using orvane::Vector;

struct Segment
{
    const Vector *ends;
    int curve;
    int index;
};

struct Found
{
    Vector place;
    float ta;
    float tb;
    int a;
    int b;
};

Box grownBox(const Segment &segment, float distance)
{
    orvane::AxisAlignedBoundingBox box;
    box.Extend(segment.ends[0]);
    box.Extend(segment.ends[1]);
    box.Grow(distance);
    box = snappedBox(box);
    return Box(Point(box.minimum.x, box.minimum.y, box.minimum.z),
               Point(box.maximum.x, box.maximum.y, box.maximum.z));
}

bool isPair(const Segment &a, const Segment &b, bool useSelfIntersections)
{
    if (a.curve != b.curve)
        return a.curve < b.curve;
    return useSelfIntersections && b.index >= a.index + 2;
}

} // namespace

PeerRun runTree(const Polylines &lines, float distance, bool useSelfIntersections)
{
    std::vector<Segment> segments;
    for (size_t k = 0; k < lines.size(); ++k) {
        for (size_t i = 0; i + 1 < lines[k].size(); ++i)
            segments.push_back({&lines[k][i], int(k), int(i)});
    }

    ProcessorClock clock;
    std::vector<Entry> entries;
    entries.reserve(segments.size());
    for (size_t i = 0; i < segments.size(); ++i)
        entries.emplace_back(grownBox(segments[i], distance), int(i));
    const Tree tree(entries.begin(), entries.end()); // packed, because it is made of a range
    std::vector<Found> found;
    for (const Entry &entry : entries) {
        const Segment &a = segments[size_t(entry.second)];
        const auto test = [&](const Entry &other) {
            const Segment &b = segments[size_t(other.second)];
            Found crossing{{}, 0.0f, 0.0f, entry.second, other.second};
            if (isPair(a, b, useSelfIntersections)
                && segmentsCross(a.ends[0], a.ends[1], b.ends[0], b.ends[1], crossing.place,
                                 crossing.ta, crossing.tb))
                found.push_back(crossing);
        };
        tree.query(bg::index::intersects(entry.first), boost::make_function_output_iterator(test));
    }
    return {clock.lap(), qint64(found.size()), -1};
}
