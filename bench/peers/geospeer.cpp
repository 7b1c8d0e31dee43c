// SPDX-License-Identifier: MIT
#include "bench/peers/geospeer.h"

#include "bench/support/processorclock.h"

#include <geos/algorithm/LineIntersector.h>
#include <geos/geom/CoordinateArraySequence.h>
#include <geos/geom/GeometryFactory.h>
#include <geos/geom/LineString.h>
#include <geos/geom/Polygon.h>
#include <geos/noding/IntersectionAdder.h>
#include <geos/noding/MCIndexNoder.h>
#include <geos/noding/NodedSegmentString.h>
#include <geos/noding/OrientedCoordinateArray.h>
#include <geos/operation/polygonize/Polygonizer.h>

#include <memory>
#include <set>

namespace {

using geos::geom::Coordinate;
using geos::geom::CoordinateArraySequence;
using geos::geom::GeometryFactory;
using geos::geom::LineString;
using geos::noding::OrientedCoordinateArray;
using geos::noding::SegmentString;
using geos::operation::polygonize::Polygonizer;

Coordinate coordinate(const orvane::Vector &v)
{
    return Coordinate(double(v.x), double(v.y));
}

// Repeated points are left out: GEOS wants none.
std::vector<Coordinate> coordinatesOf(const std::vector<orvane::Vector> &line)
{
    std::vector<Coordinate> result;
    for (const orvane::Vector &v : line) {
        const Coordinate next = coordinate(v);
        if (result.empty() || !result.back().equals2D(next))
            result.push_back(next);
    }
    return result;
}

// The strings that the noder works on, and those it makes.
class Strings
{
public:
    explicit Strings(const Polylines &lines)
    {
        for (const std::vector<orvane::Vector> &line : lines) {
            std::vector<Coordinate> coordinates = coordinatesOf(line);
            if (coordinates.size() < 2)
                continue;
            input.push_back(new geos::noding::NodedSegmentString(
                new CoordinateArraySequence(std::move(coordinates)), nullptr));
        }
    }
    ~Strings()
    {
        for (SegmentString *string : input)
            delete string;
        if (!noded)
            return;
        for (SegmentString *string : *noded)
            delete string;
    }
    Strings(const Strings &) = delete;
    Strings &operator=(const Strings &) = delete;

    std::vector<SegmentString *> input; // owned
    std::unique_ptr<std::vector<SegmentString *>> noded;
};

std::vector<std::unique_ptr<LineString>> linesOf(const std::vector<SegmentString *> &strings,
                                                 const GeometryFactory &factory,
                                                 bool withoutRepetitions)
{
    std::vector<std::unique_ptr<LineString>> lines;
    lines.reserve(strings.size());
    std::set<OrientedCoordinateArray> seen;
    for (const SegmentString *string : strings) {
        const geos::geom::CoordinateSequence *points = string->getCoordinates();
        if (withoutRepetitions && !seen.insert(OrientedCoordinateArray(*points)).second)
            continue;
        lines.push_back(factory.createLineString(points->clone()));
    }
    return lines;
}

} // namespace

PeerRun runGeos(const Polylines &lines, bool withoutRepetitions)
{
    const GeometryFactory::Ptr factory = GeometryFactory::create();
    Strings strings(lines);
    geos::algorithm::LineIntersector intersector;
    geos::noding::IntersectionAdder adder(intersector);
    geos::noding::MCIndexNoder noder(&adder);
    Polygonizer polygonizer;

    ProcessorClock clock;
    noder.computeNodes(&strings.input);
    strings.noded.reset(noder.getNodedSubstrings());
    const std::vector<std::unique_ptr<LineString>> edges =
        linesOf(*strings.noded, *factory, withoutRepetitions);
    for (const std::unique_ptr<LineString> &edge : edges)
        polygonizer.add(static_cast<const geos::geom::Geometry *>(edge.get()));
    const auto polygons = polygonizer.getPolygons();
    return {clock.lap(), adder.numProperIntersections, qint64(polygons.size())};
}

PeerRun runGeosPolygonizer(const Links &links)
{
    const GeometryFactory::Ptr factory = GeometryFactory::create();
    std::vector<std::unique_ptr<LineString>> edges;
    edges.reserve(links.size());
    for (const auto &[a, b] : links) {
        std::vector<Coordinate> ends{coordinate(a), coordinate(b)};
        if (!ends[0].equals2D(ends[1]))
            edges.push_back(factory->createLineString(
                std::make_unique<CoordinateArraySequence>(std::move(ends))));
    }
    Polygonizer polygonizer;

    ProcessorClock clock;
    for (const std::unique_ptr<LineString> &edge : edges)
        polygonizer.add(static_cast<const geos::geom::Geometry *>(edge.get()));
    const auto polygons = polygonizer.getPolygons();
    return {clock.lap(), -1, qint64(polygons.size())};
}
