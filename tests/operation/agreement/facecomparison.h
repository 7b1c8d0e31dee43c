// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/agreement/judgedshells.h"

#include <QStringList>

//! Faces of a mesh against the shells of its piece.
struct FaceComparison
{
    int expected = 0;     // compared shells that must be faces
    int found = 0;        // compared shells that are faces
    int foundLeftOut = 0; // shells left out that are faces all the same
    int unclearFaces = 0; // faces that are no shell, at a dangle, cut edge or cut vertex
    QStringList mismatches;
};

//! A compared shell must be a face exactly when it has at most maximumEdges edges, and a face
//! must be a shell. polygons: of the mesh, as vertex numbers of the graph.
FaceComparison compareFaces(const JudgedShells &piece, const QVector<QVector<int>> &polygons,
                            int maximumEdges);
