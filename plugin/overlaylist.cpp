// SPDX-License-Identifier: MIT
#include "plugin/overlaylist.h"

#include "graph/nodestore.h"

OverlayList::OverlayList() : m_store(NodeStore::instance()) {}

OverlayList::~OverlayList()
{
    m_store.release(m_nodes);
}

OverlayList &OverlayList::instance()
{
    static OverlayList list;
    return list;
}

void OverlayList::replace(const QList<IntersectionNode *> &nodes)
{
    if (nodes == m_nodes)
        return;
    m_store.hold(nodes);
    m_store.release(m_nodes);
    m_nodes = nodes;
}
