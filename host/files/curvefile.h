// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/export.h"

#include <QString>
#include <QVector>

namespace orvane {

class OrvaneCurve;

//! The curves of a JSON file, or the polylines of an OBJ file, bound to no mesh yet and owned by
//! the caller. Closed ones get their closing point; one that is drawn onto its first point again
//! loses that repetition. Empty, and one sentence in *error, when the file cannot be used.
ORVANE_FILES_EXPORT QVector<OrvaneCurve *> readCurves(const QString &path, QString *error);

//! Writes what was drawn, closing points left out, to a .json or .obj file; a curve of no points
//! has no place in the latter. A file of that name is replaced only once the new one is whole.
//! False, and one sentence in *error, when it could not be written.
ORVANE_FILES_EXPORT bool writeCurves(const QVector<const OrvaneCurve *> &curves,
                                     const QString &path, QString *error);

} // namespace orvane
