// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

//! All that the kernel's scene holds, in its order: each node with its numbers and its place, then
//! the active geometry and the drawing surface. Equal bytes, equal scenes.
QByteArray sceneBytes();
