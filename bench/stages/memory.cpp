// SPDX-License-Identifier: MIT
// Measures the memory that a run takes beyond its input: the most that is allocated at a time, of
// the program's own allocations, counted as the allocator rounds them up.
#include "bench/inputs/inputshapes.h"
#include "bench/support/benchoptions.h"
#include "bench/support/benchscene.h"
#include "bench/support/stages.h"
#include "bench/support/table.h"

#include <orvane/geometry/mesh.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>

#include <malloc.h>

namespace {

const qint64 BytesPerSegment = 64;
const qint64 BytesPerNode = 400;
const size_t Header = sizeof(size_t); // of the allocator, before each block

std::atomic<qint64> allocated{0};
std::atomic<qint64> most{0};

void *counted(void *block)
{
    if (!block)
        return nullptr;
    const qint64 now = allocated += qint64(malloc_usable_size(block) + Header);
    qint64 seen = most;
    while (now > seen && !most.compare_exchange_weak(seen, now)) {
    }
    return block;
}

void uncounted(void *block)
{
    if (block)
        allocated -= qint64(malloc_usable_size(block) + Header);
}

} // namespace

// The allocator's own entrances, under these names in the GNU C library.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *block);

// Found by every library of the process in place of the C library's.
#define BENCH_VISIBLE __attribute__((visibility("default")))

BENCH_VISIBLE void *malloc(size_t size)
{
    return counted(__libc_malloc(size));
}

BENCH_VISIBLE void *calloc(size_t count, size_t size)
{
    return counted(__libc_calloc(count, size));
}

BENCH_VISIBLE void *realloc(void *block, size_t size)
{
    const qint64 before = block ? qint64(malloc_usable_size(block) + Header) : 0;
    void *moved = __libc_realloc(block, size);
    if (moved || size == 0)
        allocated -= before;
    return counted(moved);
}

BENCH_VISIBLE void *memalign(size_t alignment, size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

BENCH_VISIBLE void *aligned_alloc(size_t alignment, size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

BENCH_VISIBLE int posix_memalign(void **block, size_t alignment, size_t size)
{
    void *made = counted(__libc_memalign(alignment, size));
    if (!made)
        return ENOMEM;
    *block = made;
    return 0;
}

BENCH_VISIBLE void free(void *block)
{
    uncounted(block);
    __libc_free(block);
}
}

namespace {

struct MemoryRun
{
    qint64 search = 0; // bytes, the most until the crossings are linked
    qint64 graph = 0;  // until the pieces are found
    qint64 faces = 0;  // from then on
    qint64 kept = 0;   // what is left at the end: nodes and meshes
    int nodes = 0;
    int segments = 0;

    qint64 peak() const { return std::max({search, graph, faces}); }
    qint64 bar() const { return BytesPerSegment * segments + BytesPerNode * nodes; }
};

MemoryRun measure(const BenchScene &scene)
{
    {
        // Once for what stays from the first run on: timers, the log, the store's own lists.
        const StageRun warm = runStages(BenchSettings());
    }
    MemoryRun result;
    result.segments = scene.segmentCount();
    qint64 before = 0;
    const auto note = [&](Stage stage) {
        const qint64 peak = most - before;
        if (stage == Collect)
            before = allocated; // the nodes of the first run are gone only now
        else if (stage <= Misses)
            result.search = std::max(result.search, peak);
        else if (stage <= Pieces)
            result.graph = std::max(result.graph, peak);
        else
            result.faces = std::max(result.faces, peak);
        most = allocated.load();
    };
    const StageRun run = runStages(BenchSettings(), note);
    result.nodes = run.nodes.size();
    result.kept = allocated - before;
    return result;
}

QString megabytes(qint64 bytes)
{
    return shortNumber(double(bytes) / 1048576.0);
}

QStringList rowOf(const QString &shape, const MemoryRun &run)
{
    const double perNode =
        double(run.peak() - BytesPerSegment * run.segments) / std::max(1, run.nodes);
    return {shape,
            QStringLiteral("%L1").arg(run.segments),
            QStringLiteral("%L1").arg(run.nodes),
            megabytes(run.search),
            megabytes(run.graph),
            megabytes(run.faces),
            megabytes(run.kept),
            shortNumber(double(run.peak()) / run.segments),
            run.nodes > 0 ? shortNumber(perNode) : QStringLiteral("-"),
            megabytes(run.bar()),
            run.peak() <= run.bar() ? QStringLiteral("met") : QStringLiteral("missed")};
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const BenchOptions options(application,
                               QStringLiteral("Measures the memory of a run beyond its input."),
                               inputShapes() + BenchScene::modelNets(), {10000, 100000});
    Table table(QStringLiteral("Memory beyond the input, MiB at the most"),
                {QStringLiteral("shape"), QStringLiteral("segments"), QStringLiteral("nodes"),
                 QStringLiteral("search"), QStringLiteral("merge, pieces"),
                 QStringLiteral("order to check"), QStringLiteral("kept"),
                 QStringLiteral("bytes/segment"),
                 QStringLiteral("bytes/node beyond %1/segment").arg(BytesPerSegment),
                 QStringLiteral("bar"), QStringLiteral("bar is")});
    for (const QString &shape : options.shapes) {
        const bool isModel = BenchScene::modelNets().contains(shape);
        const QVector<int> sizes = isModel ? QVector<int>{0} : options.sizes;
        for (int size : sizes) {
            const BenchScene scene =
                isModel ? BenchScene(shape) : BenchScene(drawingOf(shape, size));
            if (scene.curves().isEmpty())
                std::printf("%s: the models folder is not at hand (QUILLMESH_MODELS)\n",
                            qPrintable(shape));
            else
                table.add(rowOf(shape, measure(scene)));
        }
    }
    options.put(table);
    return 0;
}
