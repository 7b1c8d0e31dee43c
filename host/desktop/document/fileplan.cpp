// SPDX-License-Identifier: MIT
#include "host/desktop/document/fileplan.h"

#include "host/desktop/document/filekind.h"

namespace orvane {

FilePlan planFor(const QStringList &paths)
{
    QStringList once = paths;
    once.removeDuplicates();
    FilePlan plan;
    for (const QString &path : qAsConst(once)) {
        switch (kindOfFile(path)) {
        case FileKind::Scene:
            plan.furtherScenes.append(path);
            break;
        case FileKind::Mesh:
            plan.furtherMeshes.append(path);
            break;
        case FileKind::Curves:
            plan.curves.append(path);
            break;
        }
    }
    if (!plan.furtherScenes.isEmpty())
        plan.scene = plan.furtherScenes.takeFirst();
    else if (!plan.furtherMeshes.isEmpty())
        plan.firstMesh = plan.furtherMeshes.takeFirst();
    return plan;
}

} // namespace orvane
