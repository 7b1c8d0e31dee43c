// SPDX-License-Identifier: MIT
#pragma once

class IntersectionNode;

//! Draws the connected graph of the start node into the current OpenGL context: a blue dot for
//! each node, and from it a short stroke towards each neighbour, from red to white in the order of
//! the neighbours. Blending, point smoothing, depth writes and the line width are left as a host
//! has them by default. Null draws nothing.
void drawOverlay(IntersectionNode *start);
