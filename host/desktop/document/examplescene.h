// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/filereport.h"

#include <QString>

namespace orvane {

class Document;

//! The bundled example: a sculpted head and the curves of an artist over it.
QString exampleMeshPath();
QString exampleCurvesPath();

//! Opens both as a new scene without a path.
FileReport openExample(Document *document);

} // namespace orvane
