// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class IntersectionNode;

//! One seed per connected piece of the graph, pieces in node-list order: the first node of the
//! piece with two or more neighbours, or else its first, so that a loose end never costs a whole
//! piece. Replaces what is in seeds. A node without neighbours is a piece of its own.
void findPieces(const QList<IntersectionNode *> &nodes, QList<IntersectionNode *> &seeds);
