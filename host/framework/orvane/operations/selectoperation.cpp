// SPDX-License-Identifier: MIT
#include <orvane/operations/selectoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/scenenodes.h>

#include <QSet>

namespace orvane {

SelectOperation::SelectOperation(const QVector<Node *> &selected)
{
    const QSet<Node *> wanted(selected.cbegin(), selected.cend());
    const Scene *scene = Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i)
        SetFirst(scene->NodeAt(i), wanted.contains(scene->NodeAt(i)));
}

bool SelectOperation::Flag(Node &node) const
{
    bool selected = false;
    visitSceneNode(node, [&](auto &found) { selected = found.Selected(); });
    return selected;
}

void SelectOperation::SetFlag(Node &node, bool on) const
{
    visitSceneNode(node, [on](auto &found) { found.SetSelected(on); });
}

const ClassDesc *SelectOperation::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *SelectOperation::StaticClass()
{
    static const ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                "SelectOperation", QT_TRANSLATE_NOOP("SelectOperation", "Select"),
                                createInstances<SelectOperation>, 0, ClassDesc::SelectionOnly);
    return &desc;
}

namespace {
const ClassDesc *const Registered = SelectOperation::StaticClass();
} // namespace

} // namespace orvane
