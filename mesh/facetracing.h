// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class IntersectionNode;
class MeshBuilder;

//! Tries the face that begins with the directed edge from node to its neighbour number edge, and
//! gives it to the builder when it closes with at most maxEdges edges. An edge that belongs to a
//! face already is left alone.
void traceFace(IntersectionNode *node, int edge, MeshBuilder &builder, int maxEdges);

//! Walks on from arrived, reached from previous, always taking the free edge just below the one
//! it came by: a left turn, neighbours being in counter-clockwise order. True when it comes back
//! to start as a face; appends the vertex numbers on the way. depth: edges walked so far.
//! On false the flags it set are cleared again, but for one case: see the source.
bool walkFace(IntersectionNode *arrived, IntersectionNode *previous, IntersectionNode *start,
              int depth, int maxEdges, QVector<int> &face, const MeshBuilder &builder);

//! Does the face run counter-clockwise about the mean of its vertex normals?
//! face: vertex indices into builder. A zero normal or area answers false.
bool isInnerFace(const QVector<int> &face, const MeshBuilder &builder);
