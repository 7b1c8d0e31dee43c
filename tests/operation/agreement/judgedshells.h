// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/agreement/polygonizer.h"

//! Why a shell is not compared; the first that holds.
enum class LeftOut {
    No,
    HasHoles,
    RepeatedVertex, //!< its boundary is not one simple ring
    Dangle,         //!< these three: its boundary touches one
    CutEdge,
    CutVertex,
    TurnsOver, //!< its corners add up to a clockwise turn, so that tracing takes it for an outline
};

const int LeftOutCauses = 7;

//! The shells of one connected piece and which of them count.
struct JudgedShells
{
    PlanarGraph graph;
    QVector<Shell> shells;
    QVector<LeftOut> leftOut;       // by shell
    QVector<bool> unclearVertex;    // on a dangle or cut edge, or a cut vertex
    QVector<QVector<int>> outlines; // outer boundaries: rings, counter-clockwise, no dangles
    int invalidRings = 0;
};

//! Polygonizes the links of one connected piece, which meet at nodes only.
JudgedShells judgedShells(const PlanarGraph &graph);
