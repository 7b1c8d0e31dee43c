// SPDX-License-Identifier: MIT
#include "bench/peers/comparison.h"

#include "bench/inputs/inputshapes.h"
#include "bench/peers/pinnedsearch.h"
#ifdef BENCH_WITH_GEOS
#    include "bench/peers/geospeer.h"
#endif
#ifdef BENCH_WITH_CGAL
#    include "bench/peers/cgalpeer.h"
#endif
#ifdef BENCH_WITH_BOOST
#    include "bench/peers/treepeer.h"
#endif

namespace {

const int LatticeFrom = 50000;  // segments: from here on lattices have a higher bar
const double AboutEqual = 0.97; // sizes are rounded to whole strokes

bool isLargeLattice(const PeerInput &input)
{
    return input.shape.startsWith(QLatin1String("lattice"))
           && input.segments >= int(AboutEqual * LatticeFrom);
}

[[maybe_unused]] std::function<double(const PeerInput &)> bars(double everyShape,
                                                               double largeLattices)
{
    return [=](const PeerInput &input) {
        return isLargeLattice(input) ? largeLattices : everyShape;
    };
}

} // namespace

const std::vector<Comparison> &comparisons()
{
    static const std::vector<Comparison> all = {
#ifdef BENCH_WITH_GEOS
        {QStringLiteral("GEOS noding + polygonizer"), Collect, Check,
         [](const PeerInput &input) {
             return runGeos(input.lines, degenerateShapes().contains(input.shape));
         },
         bars(5.0, 10.0), true},
        {QStringLiteral("GEOS polygonizer"), Order, Check,
         [](const PeerInput &input) { return runGeosPolygonizer(input.links); }, bars(15.0, 15.0),
         true},
#endif
#ifdef BENCH_WITH_CGAL
        {QStringLiteral("CGAL arrangement"), Collect, Check,
         [](const PeerInput &input) { return runCgal(input.lines); }, bars(8.0, 15.0), true},
#endif
#ifdef BENCH_WITH_BOOST
        {QStringLiteral("Boost packed R-tree"), Sample, Cross,
         [](const PeerInput &input) {
             return runTree(input.lines, input.distance, input.settings.useSelfIntersections);
         },
         bars(3.0, 3.0), false},
#endif
        {QStringLiteral("pinned plain search"), Sample, Cross,
         [](const PeerInput &input) {
             return runPinnedSearch(input.lines, input.distance,
                                    input.settings.useSelfIntersections);
         },
         [](const PeerInput &input) {
             // A straight lattice keeps the boxes of half of its strokes apart.
             return isLargeLattice(input) && input.shape != QLatin1String("lattice") ? 150.0 : 0.0;
         },
         false},
    };
    return all;
}

QStringList missingPeers()
{
    QStringList missing;
#ifndef BENCH_WITH_GEOS
    missing.append(QStringLiteral("GEOS (libgeos++-dev)"));
#endif
#ifndef BENCH_WITH_CGAL
    missing.append(QStringLiteral("CGAL (libcgal-dev)"));
#endif
#ifndef BENCH_WITH_BOOST
    missing.append(QStringLiteral("Boost (libboost-dev)"));
#endif
    return missing;
}
