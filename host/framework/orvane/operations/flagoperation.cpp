// SPDX-License-Identifier: MIT
#include <orvane/operations/flagoperation.h>

#include <orvane/base/stream.h>
#include <orvane/operations/refreshhost.h>
#include <orvane/operations/scenenodes.h>

namespace orvane {

namespace {

QVector<int> numbersOf(const QVector<Node *> &nodes)
{
    QVector<int> ids;
    for (const Node *node : nodes)
        ids.append(node->ID());
    return ids;
}

} // namespace

void FlagOperation::SetFirst(const Node *node, bool on)
{
    if (node)
        (on ? m_on : m_off).append(node->ID());
}

bool FlagOperation::ExecuteAndInvert()
{
    QVector<Node *> on;
    QVector<Node *> off;
    if (!find(m_on, true, on) || !find(m_off, false, off) || (on.isEmpty() && off.isEmpty()))
        return false;
    for (Node *node : qAsConst(on))
        SetFlag(*node, true);
    for (Node *node : qAsConst(off))
        SetFlag(*node, false);
    m_on = numbersOf(off);
    m_off = numbersOf(on);
    m_first = false;
    refreshHost();
    return true;
}

bool FlagOperation::find(const QVector<int> &ids, bool flag, QVector<Node *> &nodes) const
{
    for (int id : ids) {
        Node *node = sceneNode(id, Node::StaticClass());
        if (!node)
            return false;
        if (!m_first || Flag(*node) != flag)
            nodes.append(node);
    }
    return true;
}

void FlagOperation::Serialize(Stream &stream)
{
    stream.Transfer(m_first);
    stream.Transfer(m_on);
    stream.Transfer(m_off);
}

} // namespace orvane
