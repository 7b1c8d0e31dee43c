// SPDX-License-Identifier: MIT
#include <orvane/operations/nodeoperation.h>

#include <orvane/base/stream.h>
#include <orvane/operations/refreshhost.h>
#include <orvane/operations/scenenodes.h>

namespace orvane {

NodeOperation::NodeOperation(const Node *node, const ClassDesc *kind)
    : m_kind(kind), m_id(node ? node->ID() : 0)
{}

bool NodeOperation::ExecuteAndInvert()
{
    Node *node = sceneNode(m_id, m_kind);
    if (!node || !Exchange(*node, m_first))
        return false;
    m_first = false;
    refreshHost();
    return true;
}

void NodeOperation::Serialize(Stream &stream)
{
    stream.Transfer(m_id);
    stream.Transfer(m_first);
}

} // namespace orvane
