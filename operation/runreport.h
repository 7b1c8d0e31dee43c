// SPDX-License-Identifier: MIT
#pragma once

#include "graph/export.h"
#include "graph/pointoncurve.h"
#include "mesh/holes.h"

#include <orvane/math/vector.h>

#include <QString>
#include <QStringList>
#include <QVector>

//! What became of one connected piece of the graph.
struct PieceReport
{
    enum Outcome {
        Built,     //!< it made a mesh, and the mesh was kept
        NoFace,    //!< none of its cells made a face
        Discarded, //!< it made a mesh, which was discarded for its faults
        NotAdded,  //!< the host did not take the mesh
    };

    int nodes = 0;
    orvane::Vector place; // position of the seed node, world space
    Outcome outcome = NoFace;
    QVector<int> facesByCorners; // index: number of corners; polygons of the mesh
    HoleCounts holes;
    int inFaceOfPiece = -1; // the piece in a face of which this one lies whole; -1 for none
};

//! Seconds that each stage of a run took.
struct StageSeconds
{
    double total() const
    {
        return measure + sample + self + cross + link + merge + pieces + order + build;
    }

    double measure = 0.0; // average edge length
    double sample = 0.0;
    double self = 0.0;
    double cross = 0.0;
    double link = 0.0;
    double merge = 0.0;
    double pieces = 0.0;
    double order = 0.0;
    double build = 0.0; // tracing, building, checking
};

//! What the latest generation of meshes did: a value, refilled by each run.
struct RunReport
{
    double averageEdgeLength = 1.0; // scene units
    int curves = 0;                 // null curves not counted
    int maximumEdges = 0;           // the face limit of the run
    int crossings = 0;              // nodes found by the search
    int merged = 0;                 // nodes absorbed by the merge pass
    QVector<PieceReport> pieces;    // in order of building
    QVector<PointOnCurve> pointsOnCurves;
    QVector<int> curvesWithoutCrossing; // indices into the input curves, null ones left out
    StageSeconds seconds;
    QString failure; // why nothing was made, in the user's language; empty when a mesh was made
};

//! The report of the latest run in this process.
QUILLMESH_EXPORT const RunReport &lastRunReport();
