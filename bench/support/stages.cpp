// SPDX-License-Identifier: MIT
#include "bench/support/stages.h"

#include "bench/support/buildclock.h"
#include "bench/support/processorclock.h"
#include "graph/curvecollection.h"
#include "graph/intersectionnode.h"
#include "graph/intersectionsearch.h"
#include "graph/nodemerge.h"
#include "graph/nodestore.h"
#include "graph/pieces.h"
#include "mesh/buildmesh.h"
#include "mesh/neighbourordering.h"
#include "operation/facecells.h"

#include <orvane/geometry/mesh.h>

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>

namespace {

class Run
{
public:
    Run(const BenchSettings &settings, const std::function<void(Stage)> &afterStage)
        : m_settings(settings), m_afterStage(afterStage)
    {
        NodeStore::instance().beginRun();
        m_clock.lap();
    }

    StageRun run()
    {
        collect();
        search();
        merge();
        order();
        build();
        return std::move(m_run);
    }

private:
    void note(Stage stage)
    {
        m_run.seconds[stage] = m_clock.lap();
        tell(stage);
    }

    void tell(Stage stage)
    {
        if (!m_afterStage)
            return;
        m_afterStage(stage);
        m_clock.lap();
    }

    void collect()
    {
        m_curves = collectCurves();
        note(Collect);
        m_length = float(averageEdgeLength(m_curves.toVector()));
        note(Measure);
    }

    void search()
    {
        SearchNotes notes;
        QElapsedTimer wall;
        wall.start();
        findIntersections(m_curves, m_run.nodes, m_length * m_settings.intersectionTolerance, 0.0f,
                          m_settings.useSelfIntersections, &notes);
        shareOut(m_clock.lap(), double(wall.nsecsElapsed()) * 1e-9, notes);
        m_run.crossings = m_run.nodes.size();
        tell(Misses);
    }

    // The search tells its own stages by the clock on the wall: their shares of the whole do.
    void shareOut(double seconds, double wallSeconds, const SearchNotes &notes)
    {
        const double share = seconds / wallSeconds;
        m_run.seconds[Sample] = share * notes.sampleSeconds;
        m_run.seconds[Self] = share * notes.selfSeconds;
        m_run.seconds[Cross] = share * notes.crossSeconds;
        m_run.seconds[Link] = share * notes.linkSeconds;
        m_run.seconds[Misses] = seconds - m_run.between(Sample, Link);
    }

    void merge()
    {
        mergeCloseNodes(m_run.nodes, m_length * m_settings.mergeDistance);
        note(Merge);
        findPieces(m_run.nodes, m_run.seeds);
        note(Pieces);
    }

    void order()
    {
        for (IntersectionNode *seed : qAsConst(m_run.seeds))
            orderNeighbours(seed);
        note(Order);
    }

    void build()
    {
        BuildClock &clock = BuildClock::instance();
        clock.reset();
        for (IntersectionNode *seed : qAsConst(m_run.seeds)) {
            clock.startPiece();
            const BuiltPiece piece = buildMeshFromGraph(seed, m_settings.maximumEdges);
            clock.endPiece();
            m_run.holes += piece.holes.total();
            m_run.meshes.emplace_back(piece.mesh);
        }
        m_run.seconds[Trace] = clock.traceSeconds();
        m_run.seconds[Holes] = clock.holesSeconds();
        m_run.seconds[Build] = clock.buildSeconds();
        m_run.seconds[Check] = clock.checkSeconds();
        m_run.faults = clock.faults();
        tell(Check);
    }

    BenchSettings m_settings;
    std::function<void(Stage)> m_afterStage;
    ProcessorClock m_clock;
    StageRun m_run;
    QList<orvane::OrvaneCurve *> m_curves;
    float m_length = 1.0f; // average edge length, scene units
};

} // namespace

QStringList stageNames()
{
    return QStringLiteral("collect measure sample self cross link misses merge pieces order trace "
                          "holes build check")
        .split(QLatin1Char(' '));
}

StageRun::StageRun() = default;
StageRun::StageRun(StageRun &&other) noexcept = default;
StageRun &StageRun::operator=(StageRun &&other) noexcept = default;
StageRun::~StageRun() = default;

double StageRun::total() const
{
    return between(Collect, Check);
}

double StageRun::between(Stage first, Stage last) const
{
    return std::accumulate(seconds.begin() + first, seconds.begin() + last + 1, 0.0);
}

int StageRun::cellCount() const
{
    int count = 0;
    for (size_t i = 0; i < meshes.size(); ++i) {
        if (!meshes[i])
            continue;
        const QVector<int> cells = cellsOfPolygons(*meshes[i], seeds[int(i)]);
        count += cells.isEmpty() ? 0 : *std::max_element(cells.cbegin(), cells.cend()) + 1;
    }
    return count;
}

StageRun runStages(const BenchSettings &settings, const std::function<void(Stage)> &afterStage)
{
    return Run(settings, afterStage).run();
}
