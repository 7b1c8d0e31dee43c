// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/export.h"

#include <orvane/kernel/noderecord.h>
#include <orvane/kernel/undoqueue.h>

#include <QStringList>

namespace orvane {

//! What a scene file holds; none of it is in the kernel yet.
struct SceneContents
{
    QVector<NodeRecord> nodes; // in the order of the scene's list
    QVector<UndoStep> steps;   // oldest first; none when anything is damaged
    int stepsDone = 0;         // how many of the steps are done, not undone
    int lastID = 0;            // the highest number that was given
    QVector<int> active;       // numbers of geometries made active, the latest last
    int drawingSurface = 0;    // number of a geometry; 0 for none
    bool renderMeshFaults = false;
    QStringList damage; // a sentence about each part of the file that cannot be read
};

//! Reads an .orvane file. Damaged parts are left out and named; the undo history is left out with
//! them, because its steps count on all the others. The kernel is not touched.
//! False, and one sentence in *error, when nothing can be read.
ORVANE_FILES_EXPORT bool readScene(const QString &path, SceneContents *contents, QString *error);

//! Puts the contents into the kernel in place of its scene and undo queue. Answers a sentence about
//! each thing that could not be made of them; the history is left out then too.
//! Nothing happens while an operation runs.
ORVANE_FILES_EXPORT QStringList openScene(const SceneContents &contents);

//! What a file of the kernel's scene is made of, as it was at one moment: the scene may go on
//! changing while another thread writes it. Steps of the history are shared, not copied.
struct SceneSnapshot
{
    QByteArray meta;           // the section about the scene as a whole
    QVector<NodeRecord> nodes; // in the order of the scene's list
    QVector<UndoStep> steps;   // oldest first
};

//! False while an operation runs.
ORVANE_FILES_EXPORT bool takeSnapshot(SceneSnapshot *snapshot);

//! As writeScene writes the scene that the snapshot was taken of. May run in any thread.
ORVANE_FILES_EXPORT bool writeSnapshot(const SceneSnapshot &snapshot, const QString &path,
                                       QString *error);

//! Writes the kernel's scene, its undo queue and the preferences that belong to the scene. A file
//! of that name is replaced only once the new one is whole.
//! False, and one sentence in *error, when it could not be, or while an operation runs.
ORVANE_FILES_EXPORT bool writeScene(const QString &path, QString *error);

} // namespace orvane
