// SPDX-License-Identifier: MIT
#pragma once

#include "mesh/meshbuilder.h"

class IntersectionNode;

//! Ordering, numbering and face walk as they are defined, with sets and one walk for each: what
//! the real ones are compared with. Faces are traced by the real tracing, judged elsewhere.

//! Sorts every node that can be reached from start.
void plainOrder(IntersectionNode *start);
//! Numbers the nodes and traces the faces.
MeshBuilder plainBuild(IntersectionNode *start, int maxEdges);
