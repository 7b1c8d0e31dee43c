// SPDX-License-Identifier: MIT
#include "host/desktop/document/examplescene.h"

#include "host/desktop/document/document.h"

#include <orvane/kernel/language.h>

namespace orvane {

QString exampleMeshPath()
{
    return resourceFolder() + QStringLiteral("/Example/head.obj");
}

QString exampleCurvesPath()
{
    return resourceFolder() + QStringLiteral("/Example/head_curves.json");
}

FileReport openExample(Document *document)
{
    return document->Open({exampleMeshPath(), exampleCurvesPath()});
}

} // namespace orvane
