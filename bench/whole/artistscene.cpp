// SPDX-License-Identifier: MIT
// A day's drawing: 200 strokes of 150 points on the bunny of the models folder. Times the whole
// creation, as a user waits for it, its undo and redo, and the search alone. Frames are measured by
// the program framerates, which draws them.
#include "graph/curvecollection.h"
#include "graph/intersectionsearch.h"
#include "graph/nodestore.h"
#include "host/files/meshfile.h"
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"
#include "tests/support/models.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <random>

using orvane::Vector;

namespace {

const int Strokes = 200;
const int Points = 150; // of a stroke
const unsigned Seed = 20250607;
const float MergeDistance = 0.3f;          // the dialog's defaults, as fractions
const float IntersectionTolerance = 0.05f; // of the average edge length
const float Overrun = 0.35f;               // of an end segment
const int MaximumEdges = 5;

class Random
{
public:
    float between(float low, float high)
    {
        return low + (high - low) * float(m_engine()) / 4294967296.0f;
    }
    Vector direction()
    {
        Vector v;
        do {
            v = Vector(between(-1, 1), between(-1, 1), between(-1, 1));
        } while (v.LengthSquared() < 0.01f || v.LengthSquared() > 1.0f);
        return v.Normalize();
    }

private:
    std::mt19937 m_engine{Seed};
};

// Along a part of a great circle about the mesh, from where it is seen in the middle's direction.
void addStroke(Random &random, const orvane::Mesh &mesh, const orvane::SurfaceLocator &locator)
{
    const Vector from = random.direction();
    const Vector side = Normalized(random.direction() & from);
    const Vector middle = mesh.Bounds().Center();
    const float distance = mesh.Bounds().Diagonal();
    const float angle = random.between(1.0f, 2.5f); // radians
    auto *curve = new orvane::OrvaneCurve;          // the scene's
    for (int i = 0; i < Points; ++i) {
        const float a = angle * float(i) / float(Points - 1);
        const Vector out = from * std::cos(a) + side * std::sin(a);
        const orvane::SurfacePoint point = locator.Pick(middle + out * distance, -out);
        if (point.IsOnValidFace())
            curve->AppendPoint(orvane::CurvePoint(point));
    }
    orvane::Kernel()->Scene()->AddCurve(curve);
}

bool openScene(const QString &path)
{
    orvane::Kernel()->NewScene();
    QString error;
    orvane::Geometry *geometry = orvane::readMesh(path, &error);
    if (!geometry) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return false;
    }
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    const orvane::Mesh &mesh = *geometry->CurrentLevel();
    const orvane::SurfaceLocator locator(mesh);
    Random random;
    for (int i = 0; i < Strokes; ++i)
        addStroke(random, mesh, locator);
    return true;
}

double secondsOf(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) * 1e-9;
}

bool create()
{
    ManualRetopoOperation operation(collectCurves(), MaximumEdges, MergeDistance,
                                    IntersectionTolerance, Overrun, true);
    return orvane::Kernel()->DoOperation(&operation, true, false);
}

// Creation, undo and redo; the step is taken back again, so that each run begins alike.
void wholeCreation(benchmark::State &state)
{
    double undo = 0.0;
    double redo = 0.0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        if (!create())
            return state.SkipWithError("nothing was created");
        state.SetIterationTime(secondsOf(timer));
        timer.start();
        orvane::Kernel()->Undo();
        undo += secondsOf(timer);
        timer.start();
        orvane::Kernel()->Redo();
        redo += secondsOf(timer);
        orvane::Kernel()->Undo();
    }
    const RunReport &report = lastRunReport();
    int faces = 0;
    for (const PieceReport &piece : report.pieces) {
        for (int count : piece.facesByCorners)
            faces += count;
    }
    const double runs = double(state.iterations());
    state.counters["undo_ms"] = 1e3 * undo / runs;
    state.counters["redo_ms"] = 1e3 * redo / runs;
    state.counters["crossings"] = report.crossings;
    state.counters["faces"] = faces;
}

void searchAlone(benchmark::State &state)
{
    const QList<orvane::OrvaneCurve *> curves = collectCurves();
    const float length = float(averageEdgeLength(curves.toVector()));
    for (auto _ : state) {
        NodeStore::instance().beginRun();
        QElapsedTimer timer;
        timer.start();
        QList<IntersectionNode *> nodes;
        findIntersections(curves, nodes, length * IntersectionTolerance, Overrun, true);
        state.SetIterationTime(secondsOf(timer));
        state.counters["crossings"] = nodes.size();
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QString bunny = modelFile(QStringLiteral("bunny.obj"));
    if (bunny.isEmpty()) {
        std::printf("The models folder is not at hand (QUILLMESH_MODELS): nothing is measured.\n");
        return 0;
    }
    if (!openScene(bunny))
        return 3;
    std::printf("%d strokes of %d points on bunny.obj\n", Strokes, Points);
    benchmark::RegisterBenchmark("search alone", searchAlone)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("whole creation", wholeCreation)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
