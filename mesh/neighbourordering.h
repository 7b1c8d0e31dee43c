// SPDX-License-Identifier: MIT
#pragma once

class IntersectionNode;

//! Orders the neighbours of every node that can be reached from start, each node once: see
//! IntersectionNode::sortNeighboursByAngle. Null does nothing.
void orderNeighbours(IntersectionNode *start);
