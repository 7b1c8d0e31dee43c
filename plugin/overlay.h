// SPDX-License-Identifier: MIT
#pragma once

class IntersectionNode;
struct OverlayPrograms;

//! Draws the connected graph of the start node into the current OpenGL context, through the
//! matrices of its fixed pipeline: a blue dot for each node, and from it a short stroke towards
//! each neighbour, from red to white in the order of the neighbours. With the lines program when
//! there is one, else with the program that is in use. Blending, point smoothing, depth writes and
//! the line width are left as a host has them by default, and no program of Cg is bound. Null draws
//! nothing.
void drawOverlay(const OverlayPrograms &programs, IntersectionNode *start);
