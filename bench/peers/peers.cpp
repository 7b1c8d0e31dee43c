// SPDX-License-Identifier: MIT
// Runs this project's stages and other libraries that do the same work on the same input, in turn,
// in one process, and prints how many times as long each of the others takes.
#include "bench/inputs/inputshapes.h"
#include "bench/peers/comparison.h"
#include "bench/support/benchoptions.h"
#include "bench/support/benchscene.h"
#include "bench/support/keptmemory.h"
#include "bench/support/table.h"
#include "graph/curvecollection.h"
#include "graph/intersectionnode.h"

#include <orvane/geometry/mesh.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

// What the stages found, for the check before anything is timed.
struct OurResult
{
    int crossings = 0;
    int faces = 0;
    int holes = 0;
};

OurResult prepare(PeerInput &input)
{
    const StageRun run = runStages(input.settings);
    for (const IntersectionNode *node : run.nodes) {
        for (const IntersectionNode *neighbour : node->neighbours) {
            if (node < neighbour) // each link is listed at both of its ends
                input.links.emplace_back(node->position(), neighbour->position());
        }
    }
    return {run.crossings, run.cellCount(), run.holes};
}

struct Timing
{
    std::vector<double> ours; // seconds
    std::vector<double> peer;
    std::vector<double> ratios;

    static double middle(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        const size_t half = values.size() / 2;
        return values.size() % 2 == 1 ? values[half] : 0.5 * (values[half - 1] + values[half]);
    }
};

void addPair(Timing &timing, double ours, double peer)
{
    timing.ours.push_back(ours);
    timing.peer.push_back(peer);
    timing.ratios.push_back(peer / ours);
}

double runOurs(const PeerInput &input, const Comparison &comparison)
{
    return runStages(input.settings).between(comparison.first, comparison.last);
}

Timing runPairs(const PeerInput &input, const Comparison &comparison, int pairs)
{
    Timing timing;
    for (int i = 0; i < pairs; ++i) {
        const double ours = runOurs(input, comparison);
        addPair(timing, ours, comparison.run(input).seconds);
    }
    return timing;
}

QString found(int ours, qint64 theirs)
{
    if (theirs < 0)
        return QStringLiteral("-");
    if (theirs == ours)
        return QStringLiteral("%L1, equal").arg(ours);
    return QStringLiteral("%L1, theirs %2%L3")
        .arg(ours)
        .arg(theirs > ours ? QStringLiteral("+") : QStringLiteral("-"))
        .arg(qAbs(theirs - ours));
}

QStringList rowOf(const PeerInput &input, const Comparison &comparison, const OurResult &our,
                  const PeerRun &first, const Timing &timing)
{
    const double ratio = Timing::middle(timing.ratios);
    const auto [low, high] = std::minmax_element(timing.ratios.cbegin(), timing.ratios.cend());
    const double bar = comparison.bar(input);
    return {comparison.name,
            input.shape,
            QStringLiteral("%L1").arg(input.segments),
            found(our.crossings, first.crossings),
            found(our.faces, first.faces)
                + (first.faces >= 0 && our.holes > 0
                       ? QStringLiteral(" (%L1 cells without)").arg(our.holes)
                       : QString()),
            shortNumber(1e3 * Timing::middle(timing.ours)),
            shortNumber(1e3 * Timing::middle(timing.peer)),
            shortNumber(ratio),
            shortNumber(*low) + QStringLiteral(" - ") + shortNumber(*high),
            bar > 0.0 ? shortNumber(bar) : QStringLiteral("-"),
            bar <= 0.0     ? QStringLiteral("-")
            : ratio >= bar ? QStringLiteral("met")
                           : QStringLiteral("missed")};
}

bool isWanted(const Comparison &comparison, const QStringList &words)
{
    return words.isEmpty() || std::any_of(words.cbegin(), words.cend(), [&](const QString &word) {
               return comparison.name.contains(word, Qt::CaseInsensitive);
           });
}

void compareAll(PeerInput &input, const BenchOptions &options, Table &table)
{
    const OurResult our = prepare(input);
    for (const Comparison &comparison : comparisons()) {
        if (!isWanted(comparison, options.peers) || (comparison.planarOnly && !input.isPlanar))
            continue;
        // The first run is the check and warms up; slow peers take fewer pairs.
        const PeerRun first = comparison.run(input);
        const int affordable = int(options.limit / std::max(1e-3, first.seconds));
        const int pairs = std::clamp(affordable, 1, options.pairs);
        const Timing timing = runPairs(input, comparison, pairs);
        table.add(rowOf(input, comparison, our, first, timing));
        std::fprintf(stderr, "%s, %s, %d segments: done\n", qPrintable(comparison.name),
                     qPrintable(input.shape), input.segments);
    }
}

PeerInput inputOf(const BenchScene &scene, const QString &shape)
{
    PeerInput input;
    input.shape = shape;
    input.isPlanar = !BenchScene::modelNets().contains(shape);
    input.lines = scene.polylines();
    input.segments = scene.segmentCount();
    input.distance =
        float(averageEdgeLength(scene.curves().toVector())) * input.settings.intersectionTolerance;
    return input;
}

} // namespace

int main(int argc, char **argv)
{
    keepFreedMemory();
    QCoreApplication application(argc, argv);
    const BenchOptions options(
        application,
        QStringLiteral("Runs other libraries on the same input, in turn with this project."),
        inputShapes() + BenchScene::modelNets(), {50000});
    for (const QString &peer : missingPeers())
        std::printf("%s: not found when this was built, left out\n", qPrintable(peer));
    Table table(QStringLiteral("Peers: how many times as long they take"),
                {QStringLiteral("peer"), QStringLiteral("shape"), QStringLiteral("segments"),
                 QStringLiteral("crossings"), QStringLiteral("faces"), QStringLiteral("ours, ms"),
                 QStringLiteral("peer, ms"), QStringLiteral("ratio"), QStringLiteral("from - to"),
                 QStringLiteral("bar"), QStringLiteral("bar is")});
    for (const QString &shape : options.shapes) {
        const bool isModel = BenchScene::modelNets().contains(shape);
        const QVector<int> sizes = isModel ? QVector<int>{0} : options.sizes;
        for (int size : sizes) {
            const BenchScene scene =
                isModel ? BenchScene(shape) : BenchScene(drawingOf(shape, size));
            if (scene.curves().isEmpty()) {
                std::printf("%s: the models folder is not at hand (QUILLMESH_MODELS)\n",
                            qPrintable(shape));
                continue;
            }
            PeerInput input = inputOf(scene, shape);
            compareAll(input, options, table);
        }
    }
    options.put(table);
    return 0;
}
