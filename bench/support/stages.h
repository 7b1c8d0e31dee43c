// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class IntersectionNode;

namespace orvane {
class Mesh;
}

//! The stages of a run, in order.
enum Stage {
    Collect,
    Measure,
    Sample,
    Self,
    Cross,
    Link,
    Misses, //!< looking through the places where a curve passes through a stored point
    Merge,
    Pieces,
    Order,
    Trace, //!< numbering the vertices and walking round the faces
    Holes, //!< looking for cells without a face
    Build, //!< making the mesh and finishing it
    Check, //!< looking for faults in the mesh
    StageCount
};

QStringList stageNames();

struct BenchSettings
{
    int maximumEdges = 64; // wide enough that next to no cell of the inputs is left out
    float mergeDistance = 0.0f;
    float intersectionTolerance = 0.01f;
    bool useSelfIntersections = true;
};

//! One run of all stages, as the operation does them but for the scene: what it took and found.
struct StageRun
{
    StageRun();
    StageRun(StageRun &&other) noexcept;
    StageRun &operator=(StageRun &&other) noexcept;
    ~StageRun();

    double total() const;
    double between(Stage first, Stage last) const;
    //! Cells with a face; a cell that was split into triangles counts once. Takes its time.
    int cellCount() const;

    std::array<double, StageCount> seconds{};
    int crossings = 0;
    int holes = 0; // cells without a face
    int faults = 0;
    QList<IntersectionNode *> nodes;                   // the node store's, until the next run
    QList<IntersectionNode *> seeds;                   // one per piece
    std::vector<std::unique_ptr<orvane::Mesh>> meshes; // one per piece; null where there is none
};

//! Times are processor time of all threads. Runs on the curves of the kernel's scene. Meshes with
//! faults are kept without asking. afterStage, if given, is called after each stage up to Pieces,
//! after ordering all pieces, and after building them all (as Check).
StageRun runStages(const BenchSettings &settings,
                   const std::function<void(Stage)> &afterStage = {});
