// SPDX-License-Identifier: MIT
#include <orvane/base/nodetable.h>

#include <orvane/base/log.h>
#include <orvane/base/node.h>

#include <limits>

namespace orvane {

NodeTable &NodeTable::Instance()
{
    static NodeTable table;
    return table;
}

void NodeTable::Enter(Node *node)
{
    node->m_inScene = true;
    const int id = node->m_id;
    if (id == 0)
        return;
    node->m_id = 0;
    Renumber(node, id);
}

void NodeTable::Leave(Node *node)
{
    if (m_nodes.value(node->m_id) == node)
        m_nodes.remove(node->m_id);
    node->m_inScene = false;
}

void NodeTable::Number(Node *node)
{
    if (m_lastID == std::numeric_limits<int>::max()) {
        log(QStringLiteral("All node numbers are given; \"%1\" has none.").arg(node->Name()));
        return;
    }
    Renumber(node, m_lastID + 1);
}

void NodeTable::Renumber(Node *node, int id)
{
    if (id == node->m_id)
        return;
    if (id < 1 || (node->m_inScene && m_nodes.contains(id))) {
        log(QStringLiteral("Node number %1 is not free; \"%2\" keeps its own.")
                .arg(id)
                .arg(node->Name()));
        return;
    }
    if (!node->m_inScene) {
        node->m_id = id; // shown to be free, or not, when the node enters
        return;
    }
    if (node->m_id != 0)
        m_nodes.remove(node->m_id);
    node->m_id = id;
    m_nodes.insert(id, node);
    Reserve(id);
}

void NodeTable::Reserve(int lastID)
{
    m_lastID = qMax(m_lastID, lastID);
}

void NodeTable::Restart()
{
    if (m_nodes.isEmpty())
        m_lastID = 0;
}

} // namespace orvane
