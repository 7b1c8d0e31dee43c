// SPDX-License-Identifier: MIT
#include "tests/support/models.h"

#include <QDir>
#include <QFileInfo>

QString modelFile(const QString &name)
{
    const QString folder = qEnvironmentVariable("QUILLMESH_MODELS");
    const QString path = QDir(folder).filePath(name);
    return !folder.isEmpty() && QFileInfo::exists(path) ? path : QString();
}
