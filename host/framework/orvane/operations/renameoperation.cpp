// SPDX-License-Identifier: MIT
#include <orvane/operations/renameoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>

namespace orvane {

RenameOperation::RenameOperation(const Node *node, const QString &name)
    : NodeOperation(node, Node::StaticClass()), m_name(name)
{}

bool RenameOperation::Exchange(Node &node, bool first)
{
    const QString before = node.Name();
    if (first && m_name == before)
        return false;
    node.SetName(m_name);
    m_name = before;
    return true;
}

void RenameOperation::Serialize(Stream &stream)
{
    NodeOperation::Serialize(stream);
    stream.Transfer(m_name);
}

const ClassDesc *RenameOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *RenameOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "RenameOperation", QT_TRANSLATE_NOOP("RenameOperation", "Rename"),
                                createInstances<RenameOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = RenameOperation::StaticClass();
} // namespace

} // namespace orvane
