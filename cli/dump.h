// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

class ManualRetopoOperation;
struct BuildOptions;

namespace orvane {
class OrvaneCurve;
}

//! What a run used and made, as JSON: parameters in the operation's units, curve points as stored,
//! the nodes of each piece, the faces of each mesh. Floats with 9 significant digits, so that
//! reading them gives the same floats; null for what is not finite.
QByteArray dumpRun(const BuildOptions &options, const QVector<orvane::OrvaneCurve *> &curves,
                   const ManualRetopoOperation &operation);
