// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvane {

enum class FileKind { Scene, Mesh, Curves };

//! What the file is to be read as, by its name and what is in it. A scene is one under any name; an
//! OBJ file with polylines and no faces holds curves. What cannot be told is a mesh.
FileKind kindOfFile(const QString &path);

} // namespace orvane
