// SPDX-License-Identifier: MIT
#include "graph/nodestore.h"

#include <algorithm>
#include <utility>

NodeStore &NodeStore::instance()
{
    static NodeStore store;
    return store;
}

int NodeStore::nodeCount() const
{
    std::size_t count = 0;
    for (const Run &run : m_runs) {
        for (const NodeBlock &nodes : run.nodes)
            count += nodes.size();
    }
    return int(count);
}

void NodeStore::beginRun()
{
    const auto isFree = [](const Run &run) {
        return run.holders <= 0;
    };
    m_runs.erase(std::remove_if(m_runs.begin(), m_runs.end(), isFree), m_runs.end());
    m_runs.emplace_back();
}

void NodeStore::own(NodeBlock &&nodes)
{
    if (m_runs.empty())
        beginRun();
    m_runs.back().nodes.push_back(std::move(nodes));
}

void NodeStore::setSeeds(const QList<IntersectionNode *> &seeds)
{
    if (!m_runs.empty())
        m_runs.back().seeds = seeds;
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
