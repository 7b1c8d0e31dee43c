// SPDX-License-Identifier: MIT
// Times each stage of a run apart, on every shape and size of input, and fits how the time grows.
// Words that begin with --benchmark_ go to Google Benchmark.
#include "bench/support/stages.h"
#include "bench/inputs/inputshapes.h"
#include "bench/support/benchoptions.h"
#include "bench/support/benchscene.h"
#include "bench/support/growth.h"
#include "bench/support/keptmemory.h"
#include "bench/support/table.h"

#include <orvane/geometry/mesh.h>

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

// Below, what does not grow still counts for much. Sizes are rounded to whole strokes: those of
// about 10,000 are in.
const int GrowthFrom = 9500;    // segments
const int DegenerateAt = 50000; // segments
const double SearchGrowthOfLattices = 1.12;
const double SearchGrowth = 1.2;
const double FaceGrowth = 1.15;
const double DegenerateTimes = 3.0;

struct Medians
{
    std::array<double, StageCount> seconds{};
    double total = 0.0;
    int crossings = 0;

    double between(Stage first, Stage last) const
    {
        double sum = 0.0;
        for (int stage = first; stage <= last; ++stage)
            sum += seconds[size_t(stage)];
        return sum;
    }
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : 0.5 * (values[half - 1] + values[half]);
}

Medians mediansOf(const std::vector<StageRun> &runs)
{
    Medians result;
    for (int stage = 0; stage < StageCount; ++stage) {
        std::vector<double> values;
        for (const StageRun &run : runs)
            values.push_back(run.seconds[size_t(stage)]);
        result.seconds[size_t(stage)] = median(values);
    }
    std::vector<double> totals;
    for (const StageRun &run : runs)
        totals.push_back(run.total());
    result.total = median(totals);
    result.crossings = runs.front().crossings;
    return result;
}

// All measured so far, by shape and number of segments.
class Measurements
{
public:
    explicit Measurements(double limit) : m_limit(limit) {}

    void measure(benchmark::State &state, const QString &shape, int size)
    {
        if (expectedAt(totals(shape), size) > m_limit) {
            state.SkipWithError("left out: it would take longer than --limit");
            return;
        }
        open(shape, size);
        if (m_scene->curves().isEmpty()) {
            state.SkipWithError("left out: the models folder is not at hand (QUILLMESH_MODELS)");
            return;
        }
        warmUp();
        std::vector<StageRun> runs;
        for (auto _ : state) {
            runs.push_back(runStages(BenchSettings()));
            runs.back().meshes.clear();
            state.SetIterationTime(runs.back().total());
        }
        const Medians medians = mediansOf(runs);
        const int segments = m_scene->segmentCount();
        m_medians[shape][segments] = medians;
        for (int stage = 0; stage < StageCount; ++stage)
            state.counters[stageNames()[stage].toStdString() + "_ms"] =
                1e3 * medians.seconds[size_t(stage)];
        state.counters["segments"] = segments;
        state.counters["crossings"] = medians.crossings;
    }

    const std::map<int, Medians> &of(const QString &shape) { return m_medians[shape]; }

    std::map<int, double> points(const QString &shape, Stage first, Stage last)
    {
        std::map<int, double> result;
        for (const auto &[segments, medians] : m_medians[shape])
            result[segments] = medians.between(first, last);
        return result;
    }

private:
    std::map<int, double> totals(const QString &shape) { return points(shape, Collect, Check); }

    void open(const QString &shape, int size)
    {
        if (m_scene && m_shape == shape && m_size == size)
            return;
        m_shape = shape;
        m_size = size;
        m_isWarm = false;
        m_scene.reset();
        m_scene = BenchScene::modelNets().contains(shape)
                      ? std::make_unique<BenchScene>(shape)
                      : std::make_unique<BenchScene>(drawingOf(shape, size));
    }

    // Memory that a run takes for the first time comes slowly.
    void warmUp()
    {
        if (!m_isWarm)
            runStages(BenchSettings());
        m_isWarm = true;
    }

    double m_limit;
    std::map<QString, std::map<int, Medians>> m_medians;
    std::unique_ptr<BenchScene> m_scene; // kept, because a benchmark is entered several times
    QString m_shape;
    int m_size = 0;
    bool m_isWarm = false; // has the scene been run?
};

void registerAll(Measurements &measurements, const BenchOptions &options)
{
    for (const QString &shape : options.shapes) {
        const bool isModel = BenchScene::modelNets().contains(shape);
        const QVector<int> sizes = isModel ? QVector<int>{0} : options.sizes;
        for (int size : sizes) {
            const std::string name =
                isModel ? shape.toStdString() : shape.toStdString() + '/' + std::to_string(size);
            benchmark::RegisterBenchmark(name.c_str(),
                                         [&measurements, shape, size](benchmark::State &state) {
                                             measurements.measure(state, shape, size);
                                         })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
}

QString withBar(double value, double bar)
{
    if (std::isnan(value))
        return QStringLiteral("-");
    return QStringLiteral("%1 (bar %2: %3)")
        .arg(value, 0, 'f', 2)
        .arg(bar)
        .arg(value <= bar ? QStringLiteral("met") : QStringLiteral("missed"));
}

Table stageTable(const QString &shape, Measurements &measurements)
{
    QStringList columns{QStringLiteral("milliseconds")};
    for (const auto &entry : measurements.of(shape))
        columns.append(QStringLiteral("%L1 segments").arg(entry.first));
    columns.append(QStringLiteral("exponent"));
    Table table(shape, columns);
    const auto add = [&](const QString &name, Stage first, Stage last) {
        const std::map<int, double> points = measurements.points(shape, first, last);
        QStringList row{name};
        for (const auto &point : points)
            row.append(shortNumber(1e3 * point.second));
        row.append(shortNumber(growthExponent(points)));
        table.add(row);
    };
    QStringList crossings{QStringLiteral("(crossings)")};
    for (const auto &entry : measurements.of(shape))
        crossings.append(QStringLiteral("%L1").arg(entry.second.crossings));
    table.add(crossings);
    for (int stage = 0; stage < StageCount; ++stage)
        add(stageNames()[stage], Stage(stage), Stage(stage));
    add(QStringLiteral("all"), Collect, Check);
    return table;
}

Table growthTable(const BenchOptions &options, Measurements &measurements)
{
    Table table(QStringLiteral("Growth: exponents fitted from %L1 segments on").arg(GrowthFrom),
                {QStringLiteral("shape"), QStringLiteral("search"),
                 QStringLiteral("order, trace, holes, build, check"), QStringLiteral("all")});
    for (const QString &shape : options.shapes) {
        if (measurements.of(shape).size() < 2)
            continue;
        const auto exponent = [&](Stage first, Stage last) {
            return growthExponent(measurements.points(shape, first, last), GrowthFrom);
        };
        const bool isLattice = shape.startsWith(QLatin1String("lattice"));
        table.add(
            {shape,
             withBar(exponent(Sample, Misses), isLattice ? SearchGrowthOfLattices : SearchGrowth),
             withBar(exponent(Order, Check), FaceGrowth), shortNumber(exponent(Collect, Check))});
    }
    return table;
}

// Of the sizes that were measured the one nearest to what was asked for; 0 for none.
int nearestSize(const std::map<int, Medians> &medians, int segments)
{
    int nearest = 0;
    for (const auto &entry : medians) {
        if (nearest == 0 || std::abs(entry.first - segments) < std::abs(nearest - segments))
            nearest = entry.first;
    }
    return nearest;
}

Table degenerateTable(const BenchOptions &options, Measurements &measurements)
{
    Table table(QStringLiteral("Degenerate input, against the lattice of as many segments"),
                {QStringLiteral("shape"), QStringLiteral("segments"), QStringLiteral("ms"),
                 QStringLiteral("times the lattice")});
    const std::map<int, Medians> &generic = measurements.of(QStringLiteral("lattice"));
    for (const QString &shape : options.shapes) {
        const std::map<int, Medians> &own = measurements.of(shape);
        if (!degenerateShapes().contains(shape) || own.empty() || generic.empty())
            continue;
        const int size = nearestSize(own, DegenerateAt);
        const int genericSize = nearestSize(generic, size);
        const double time = own.at(size).total;
        const double perSegment = generic.at(genericSize).total / genericSize;
        table.add({shape, QStringLiteral("%L1").arg(size), shortNumber(1e3 * time),
                   withBar(time / size / perSegment, DegenerateTimes)});
    }
    return table;
}

// Google Benchmark's own words, and the others.
QVector<QVector<char *>> split(int argc, char **argv)
{
    QVector<char *> own{argv[0]};
    QVector<char *> others{argv[0]};
    for (int i = 1; i < argc; ++i)
        (QByteArray(argv[i]).startsWith("--benchmark_") ? others : own).append(argv[i]);
    return {own, others};
}

} // namespace

int main(int argc, char **argv)
{
    keepFreedMemory();
    QVector<QVector<char *>> words = split(argc, argv);
    int ownCount = words[0].size();
    int otherCount = words[1].size();
    QCoreApplication application(ownCount, words[0].data());
    const BenchOptions options(
        application, QStringLiteral("Times each stage of a run, by shape and size."),
        inputShapes() + BenchScene::modelNets(), {2000, 10000, 50000, 200000, 1000000});
    benchmark::Initialize(&otherCount, words[1].data());
    Measurements measurements(options.limit);
    registerAll(measurements, options);
    benchmark::RunSpecifiedBenchmarks();
    for (const QString &shape : options.shapes) {
        if (!measurements.of(shape).empty())
            options.put(stageTable(shape, measurements));
    }
    options.put(growthTable(options, measurements));
    options.put(degenerateTable(options, measurements));
    return 0;
}
