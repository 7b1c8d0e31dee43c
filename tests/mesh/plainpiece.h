// SPDX-License-Identifier: MIT
#pragma once

#include "mesh/piecegraph.h"

//! The nodes as a piece, numbered as they are listed; links by looking each one up.
PieceGraph plainPiece(const QVector<IntersectionNode *> &nodes);
