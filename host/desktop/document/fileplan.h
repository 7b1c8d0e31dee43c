// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace orvane {

//! Several files to be opened at once, as they will be: a scene or else a mesh replaces the scene.
struct FilePlan
{
    bool ReplacesScene() const { return !scene.isEmpty() || !firstMesh.isEmpty(); }

    QString scene;     // empty: none
    QString firstMesh; // to make a new scene with; empty: none
    QStringList furtherScenes;
    QStringList furtherMeshes;
    QStringList curves;
};

//! Each path once, in its order.
FilePlan planFor(const QStringList &paths);

} // namespace orvane
