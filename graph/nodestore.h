// SPDX-License-Identifier: MIT
#pragma once

#include "graph/nodeblock.h"

#include <QList>

#include <vector>

//! Owns the intersection nodes of every run, and frees a run once nothing lists its seeds.
//! An undo frees nothing: overlays and copies of an operation still point to the nodes.
class NodeStore
{
public:
    static NodeStore &instance();
    NodeStore(const NodeStore &) = delete;
    NodeStore &operator=(const NodeStore &) = delete;

    //! Nodes that are still kept.
    int nodeCount() const;

    //! Frees the runs that nobody holds; nodes made from now on belong to a new run.
    void beginRun();
    //! The current run takes the nodes over; they stay where they are.
    void own(NodeBlock &&nodes);
    //! These are the seeds of the current run: a list with any of them stands for it from now on.
    void setSeeds(const QList<IntersectionNode *> &seeds);

    //! The run that the list stands for is kept until as many releases as holds.
    //! An empty list, or one of no kept run, is ignored.
    void hold(const QList<IntersectionNode *> &seeds);
    void release(const QList<IntersectionNode *> &seeds);

private:
    struct Run
    {
        std::vector<NodeBlock> nodes; // as they were handed over
        QList<IntersectionNode *> seeds;
        int holders = 0;
    };

    NodeStore() = default;
    Run *runOf(const QList<IntersectionNode *> &seeds);

    std::vector<Run> m_runs; // the current one last
};
