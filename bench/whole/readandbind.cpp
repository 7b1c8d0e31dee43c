// SPDX-License-Identifier: MIT
// A mesh of a million triangles as OBJ and 1,000 strokes on it: reading, binding, building and
// writing, beside what assimp takes for reading the same file and embree for its tree over the
// same triangles.
#include "graph/curvecollection.h"
#include "host/files/curvebinding.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "operation/manualretopooperation.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <benchmark/benchmark.h>
#include <embree3/rtcore.h>

#include <cmath>
#include <cstdio>

namespace {

const int Columns = 708; // quads along each side, cut into two triangles each: 1,002,528
const int Strokes = 1000;
const int Points = 100;            // of a stroke
const float BindReach = 0.02f;     // of the mesh's diagonal
const float MergeDistance = 0.02f; // of the average edge length
const float IntersectionTolerance = 0.05f;
const int MaximumEdges = 5;

double heightAt(double x, double y)
{
    return 8.0 * std::sin(x * 0.021) * std::cos(y * 0.017);
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 9);
}

QByteArray meshText()
{
    QByteArray text;
    for (int j = 0; j <= Columns; ++j) {
        for (int i = 0; i <= Columns; ++i)
            text += "v " + number(i) + ' ' + number(j) + ' ' + number(heightAt(i, j)) + '\n';
    }
    for (int j = 0; j < Columns; ++j) {
        for (int i = 0; i < Columns; ++i) {
            const int a = j * (Columns + 1) + i + 1;
            const QByteArray first = "f " + QByteArray::number(a) + ' ';
            const QByteArray across = QByteArray::number(a + Columns + 2);
            text += first + QByteArray::number(a + 1) + ' ' + across + '\n';
            text += first + across + ' ' + QByteArray::number(a + Columns + 1) + '\n';
        }
    }
    return text;
}

// Half of the strokes across the other half, waving, a little above the surface.
QByteArray strokesText()
{
    QByteArray text = "{\"curves\": [\n";
    for (int k = 0; k < Strokes; ++k) {
        text += k > 0 ? ",\n{\"points\": [" : "{\"points\": [";
        for (int i = 0; i < Points; ++i) {
            const double along = 10.0 + (Columns - 20.0) * i / (Points - 1);
            const double place = 20.0 + (Columns - 40.0) * (k / 2) / (Strokes / 2)
                                 + 0.2 * std::sin(0.09 * along + 1.7 * k);
            const double x = k % 2 == 1 ? place : along;
            const double y = k % 2 == 1 ? along : place;
            text += i > 0 ? ", [" : "[";
            text += number(x) + ", " + number(y) + ", " + number(heightAt(x, y) + 0.05) + ']';
        }
        text += "]}";
    }
    return text + "\n]}\n";
}

class Folder
{
public:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    bool write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

private:
    QTemporaryDir m_folder;
};

double lap(QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) * 1e-6; // milliseconds
}

void ours(benchmark::State &state, const Folder &folder)
{
    for (auto _ : state) {
        orvane::Kernel()->NewScene();
        orvane::Scene *scene = orvane::Kernel()->Scene();
        QString error;
        QElapsedTimer whole;
        QElapsedTimer timer;
        whole.start();
        timer.start();
        orvane::Geometry *geometry = orvane::readMesh(folder.path("mesh.obj"), &error);
        if (!geometry)
            return state.SkipWithError(qPrintable(error));
        scene->AddGeometry(geometry);
        state.counters["1_read_mesh_ms"] = lap(timer);
        timer.start();
        const QVector<orvane::OrvaneCurve *> curves =
            orvane::readCurves(folder.path("strokes.json"), &error);
        for (orvane::OrvaneCurve *curve : curves)
            scene->AddCurve(curve);
        state.counters["2_read_strokes_ms"] = lap(timer);
        timer.start();
        const orvane::Mesh &mesh = *geometry->CurrentLevel();
        const orvane::CurveBinding binding =
            orvane::bindCurves(curves, mesh, BindReach * mesh.Bounds().Diagonal());
        state.counters["3_bind_ms"] = lap(timer);
        timer.start();
        ManualRetopoOperation operation(curves.toList(), MaximumEdges, MergeDistance,
                                        IntersectionTolerance, 0.0f, false);
        if (!orvane::Kernel()->DoOperation(&operation, true, false))
            return state.SkipWithError("nothing was created");
        state.counters["4_build_ms"] = lap(timer);
        timer.start();
        QVector<const orvane::Geometry *> made;
        for (const orvane::Geometry *one : operation.AddGeometry())
            made.append(one);
        if (!orvane::writeMeshes(made, folder.path("out.obj"), &error))
            return state.SkipWithError(qPrintable(error));
        state.counters["5_write_ms"] = lap(timer);
        state.SetIterationTime(1e-3 * lap(whole));
        state.counters["bound"] = binding.bound;
    }
}

void assimpReads(benchmark::State &state, const Folder &folder)
{
    for (auto _ : state) {
        Assimp::Importer importer;
        QElapsedTimer timer;
        timer.start();
        const aiScene *scene =
            importer.ReadFile(QFile::encodeName(folder.path("mesh.obj")).constData(), 0);
        if (!scene)
            return state.SkipWithError(importer.GetErrorString());
        state.SetIterationTime(1e-3 * lap(timer));
    }
}

// As the framework asks for it: robust, from arrays that are there already, on embree's threads.
void embreeBuilds(benchmark::State &state, const Folder &folder)
{
    QString error;
    orvane::Kernel()->NewScene();
    orvane::Geometry *geometry = orvane::readMesh(folder.path("mesh.obj"), &error);
    if (!geometry)
        return state.SkipWithError(qPrintable(error));
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    const orvane::Mesh &mesh = *geometry->CurrentLevel();
    const QVector<orvane::Vector> &positions = mesh.Positions();
    RTCDevice device = rtcNewDevice(nullptr);
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        RTCScene scene = rtcNewScene(device);
        rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST);
        RTCGeometry shape = rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE);
        rtcSetSharedGeometryBuffer(shape, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                   positions.constData(), 0, sizeof(orvane::Vector),
                                   size_t(positions.size()));
        rtcSetSharedGeometryBuffer(shape, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                                   mesh.Corners().constData(), 0, 3 * sizeof(int),
                                   size_t(mesh.FaceCount()));
        rtcCommitGeometry(shape);
        rtcAttachGeometry(scene, shape);
        rtcReleaseGeometry(shape);
        rtcCommitScene(scene);
        state.SetIterationTime(1e-3 * lap(timer));
        rtcReleaseScene(scene);
    }
    rtcReleaseDevice(device);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const Folder folder;
    if (!folder.write("mesh.obj", meshText()) || !folder.write("strokes.json", strokesText())) {
        std::fprintf(stderr, "The temporary folder cannot be written to.\n");
        return 3;
    }
    std::printf("%d triangles, %d strokes of %d points\n", 2 * Columns * Columns, Strokes, Points);
    using Function = void (*)(benchmark::State &, const Folder &);
    const std::pair<const char *, Function> all[] = {{"read, bind, build, write", ours},
                                                     {"assimp reads the mesh", assimpReads},
                                                     {"embree builds its tree", embreeBuilds}};
    for (const auto &[name, function] : all)
        benchmark::RegisterBenchmark(
            name, [&folder, f = function](benchmark::State &state) { f(state, folder); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
