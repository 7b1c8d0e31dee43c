// SPDX-License-Identifier: MIT
#pragma once

class DirectedEdges;
class MeshBuilder;

//! The cells of a piece that have no face, by what kept the face from being made.
struct HoleCounts
{
    int total() const { return overLimit + dangling + unclosed; }

    int overLimit = 0; // more edges than the limit
    int dangling = 0;  // loose ends at its corners lead every walk astray
    int unclosed = 0;  // no walk comes back to its start in a left turn on the whole
};

//! Looks at the left-turning cycles of a traced piece that have no edge of a face, and counts the
//! inner ones. Linear in the edges.
HoleCounts countHoles(const DirectedEdges &edges, const MeshBuilder &builder, int maxEdges);
