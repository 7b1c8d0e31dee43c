// SPDX-License-Identifier: MIT
#include "host/desktop/window/meshcommands.h"

#include "host/desktop/window/scenelist.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/projectoperation.h>
#include <orvane/operations/relaxoperation.h>

namespace orvane {

namespace {

const int RelaxSteps = 5;
const float RelaxStrength = 0.5f; // of the whole way to the middle of the neighbours

// The mesh to work on: the selected one that is not drawn on, or else the active one.
const Geometry *newMesh()
{
    const Scene *scene = Kernel()->Scene();
    const QVector<Geometry *> geometries = scene->Geometries();
    for (const Geometry *geometry : geometries) {
        if (geometry->Selected() && geometry != scene->DrawingSurface())
            return geometry;
    }
    return scene->ActiveGeometry();
}

} // namespace

MeshCommands::MeshCommands(const Workbench &workbench)
    : CommandGroup(workbench, QStringLiteral("Mesh"))
{
    add({"drawOnMesh", tr("Draw on &This Mesh"),
         tr("Curve tools draw on the mesh that is current in the scene list.")},
        100, [this] { bench().sceneList->DrawOnCurrent(); });
    addSeparator(890);
    add({"relaxMesh", tr("&Smooth Along Source"),
         tr("Even out the vertices of the new mesh; they stay on the source."),
         QKeySequence(Qt::CTRL + Qt::Key_T)},
        900, [this] { relax(); });
    add({"projectMesh", tr("&Put Onto Source"),
         tr("Put every vertex of the new mesh back onto the source."),
         QKeySequence(Qt::CTRL + Qt::Key_P)},
        910, [this] { project(); });
}

void MeshCommands::relax()
{
    RelaxOperation operation(newMesh(), Kernel()->Scene()->DrawingSurface(), RelaxSteps,
                             RelaxStrength);
    Kernel()->DoOperation(&operation, true, false);
}

void MeshCommands::project()
{
    ProjectOperation operation(newMesh(), Kernel()->Scene()->DrawingSurface());
    Kernel()->DoOperation(&operation, true, false);
}

} // namespace orvane
