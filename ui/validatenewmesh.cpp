// SPDX-License-Identifier: MIT
#include "ui/validatenewmesh.h"

#include "ui/validatemeshfeedbackmdialog.h"

#include "host/meshchecker/meshchecker.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/mesh.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

namespace {

// The user knows the object in the scene list rather than one of its levels.
QString shownName(const orvane::Mesh &mesh)
{
    const orvane::Geometry *holder = mesh.Holder();
    return holder ? holder->Name() : mesh.Name();
}

void showFaults()
{
    const orvane::Node *preferences = orvane::Kernel()->Preferences();
    auto *renderFaults = dynamic_cast<orvane::AttributeInstance<bool> *>(
        preferences->AttributeByID(QStringLiteral("Render Mesh Faults")));
    if (renderFaults && !renderFaults->Value())
        renderFaults->SetValue(true);
}

} // namespace

bool validateNewMesh(orvane::Mesh *mesh)
{
    const orvane::MeshChecker checker;
    const int faults = checker.Validate(mesh);
    if (faults == 0)
        return true;
    ValidateMeshFeedbackmDialog dialog(orvane::Kernel()->Interface()->MainWindow(),
                                       shownName(*mesh), faults);
    dialog.exec();
    if (!dialog.isAccepted())
        return false;
    showFaults();
    return true;
}
