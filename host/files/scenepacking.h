// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/scenefile.h"

namespace orvane {

//! What the section about the scene as a whole says of the other sections.
struct SceneMeta
{
    QStringList nodeNames; // in the order of the scene's list
    int steps = 0;         // of the undo queue
    int stepsDone = 0;
};

//! The bytes of each kind of section: the first is JSON; the others hold their place (from 0), then
//! numbers, all little-endian, and what nodes and operations wrote of themselves as it is.
//! Reading answers false when the bytes make no sense; counts are never trusted beyond them.
QByteArray packMeta();
bool unpackMeta(const QByteArray &bytes, SceneMeta *meta, SceneContents *contents);

QByteArray packNode(int place, const NodeRecord &node);
bool unpackNode(const QByteArray &bytes, int *place, NodeRecord *node);

QByteArray packStep(int place, const UndoStep &step);
bool unpackStep(const QByteArray &bytes, int *place, UndoStep *step);

} // namespace orvane
