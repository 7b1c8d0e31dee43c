// SPDX-License-Identifier: MIT
#include <orvane/operations/scenenodes.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/nodetable.h>
#include <orvane/kernel/noderecord.h>

namespace orvane {

Node *sceneNode(int id, const ClassDesc *kind)
{
    Node *node = NodeTable::Instance().Find(id);
    if (node && !partsOf(node).isEmpty() && node->RuntimeClass()->IsA(kind))
        return node;
    log(QStringLiteral("No %1 of the scene has the number %2: the step cannot be run.")
            .arg(kind->DisplayName().toLower())
            .arg(id));
    return nullptr;
}

} // namespace orvane
