// SPDX-License-Identifier: MIT
#include "graph/nodestore.h"

#include "graph/intersectionnode.h"

NodeStore &NodeStore::instance()
{
    static NodeStore store;
    return store;
}

NodeStore::~NodeStore()
{
    for (const Run &run : qAsConst(m_runs))
        qDeleteAll(run.nodes);
}

int NodeStore::nodeCount() const
{
    int count = 0;
    for (const Run &run : m_runs)
        count += run.nodes.size();
    return count;
}

void NodeStore::beginRun()
{
    QVector<Run> kept;
    for (const Run &run : qAsConst(m_runs)) {
        if (run.holders > 0)
            kept.append(run);
        else
            qDeleteAll(run.nodes);
    }
    kept.append(Run());
    m_runs = kept;
}

void NodeStore::own(IntersectionNode *node)
{
    if (m_runs.isEmpty())
        beginRun();
    m_runs.last().nodes.append(node);
}

void NodeStore::setSeeds(const QList<IntersectionNode *> &seeds)
{
    if (!m_runs.isEmpty())
        m_runs.last().seeds = seeds;
}

void NodeStore::hold(const QList<IntersectionNode *> &seeds)
{
    if (Run *run = runOf(seeds))
        ++run->holders;
}

void NodeStore::release(const QList<IntersectionNode *> &seeds)
{
    if (Run *run = runOf(seeds))
        --run->holders;
}

NodeStore::Run *NodeStore::runOf(const QList<IntersectionNode *> &seeds)
{
    if (seeds.isEmpty())
        return nullptr;
    for (Run &run : m_runs) {
        if (run.seeds.contains(seeds.first()))
            return &run;
    }
    return nullptr;
}
