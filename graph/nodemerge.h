// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class IntersectionNode;

//! Fuses linked nodes closer than mergeDistance (scene units, strictly less), in list order.
//! Nodes that are close but not linked stay apart. Absorbed nodes leave the list, unlinked; the
//! others keep their order. Invalidates every index into nodes.
void mergeCloseNodes(QList<IntersectionNode *> &nodes, float mergeDistance);
