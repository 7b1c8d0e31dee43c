// SPDX-License-Identifier: MIT
#include <orvane/operations/showoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/operations/scenenodes.h>

namespace orvane {

ShowOperation::ShowOperation(const QVector<Node *> &nodes, bool show)
{
    for (const Node *node : nodes)
        SetFirst(node, show);
}

bool ShowOperation::Flag(Node &node) const
{
    bool shown = false;
    visitSceneNode(node, [&](auto &found) { shown = !found.IsHidden(); });
    return shown;
}

void ShowOperation::SetFlag(Node &node, bool on) const
{
    visitSceneNode(node, [on](auto &found) { found.SetHidden(!on); });
}

const ClassDesc *ShowOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *ShowOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(), "ShowOperation",
                                QT_TRANSLATE_NOOP("ShowOperation", "Show or Hide"),
                                createInstances<ShowOperation>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = ShowOperation::StaticClass();
} // namespace

} // namespace orvane
