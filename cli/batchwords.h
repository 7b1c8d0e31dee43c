// SPDX-License-Identifier: MIT
#pragma once

#include "operation/runreport.h"

#include <QString>
#include <QVector>

//! "1 crossing", "2 crossings".
QString counted(int count, const char *thing);
//! Faces of a file that reading left out.
QString leftOutInWords(int faces);
//! "3 triangles, 240 quads, 5 of 5 corners"; index of counts: number of corners.
QString facesInWords(const QVector<int> &facesByCorners);
//! "7: 5 over the limit, 2 at loose ends"; "none".
QString holesInWords(const HoleCounts &holes);
//! Why the piece made no mesh; empty for one that did.
QString pieceFailureInWords(const PieceReport &piece);
//! That so many meshes were kept although they have faults.
QString acceptedFaultsInWords(int meshes);
QString placeInWords(const orvane::Vector &place);

//! Sums over all pieces that made a mesh; holes over all pieces.
QVector<int> totalFaces(const RunReport &run);
HoleCounts totalHoles(const RunReport &run);
