// SPDX-License-Identifier: MIT
#pragma once

#include "operation/runreport.h"

#include <QList>

class IntersectionNode;
struct BuiltPiece;
struct SearchNotes;

namespace orvane {
class OrvaneCurve;
}

//! Empties the report of the latest run for a run that starts now.
RunReport &startReport(const QList<orvane::OrvaneCurve *> &curves, int maximumEdges);

//! What the search found: its nodes, before any merging.
void noteSearch(RunReport &report, const SearchNotes &notes, const QList<IntersectionNode *> &nodes,
                const QList<orvane::OrvaneCurve *> &curves);

//! Adds what came of the piece with this seed to the report of the current run. The outcome of a
//! piece with a mesh is NotAdded until the host has taken it.
PieceReport &notePiece(const BuiltPiece &piece, const IntersectionNode &seed);

//! All pieces are in: says why nothing was made, if nothing was.
void finishReport(RunReport &report);
