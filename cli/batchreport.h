// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/curvebinding.h"
#include "operation/runreport.h"

#include <QByteArray>
#include <QPair>
#include <QStringList>

//! A mesh that was made and kept.
struct MadeMesh
{
    QString name;
    int piece = 0;      // index into the run's pieces
    int faultBits = 0;  // as the mesh checker gives them
    QStringList faults; // in words
};

//! What a batch run read, did and wrote.
struct BatchReport
{
    QString meshFile;
    QString curvesFile;
    int sourceFaces = 0; // polygons
    int sourceVertices = 0;
    int facesLeftOut = 0; // of the mesh file, of fewer than three different corners
    orvane::CurveBinding binding;
    QStringList curveNames; // by input curve
    RunReport run;
    QVector<MadeMesh> meshes;
    QVector<QPair<QString, double>> otherTimes; // seconds of reading, binding, writing
    QStringList written;                        // files, in order
};

//! For people.
QString reportText(const BatchReport &report);
//! For machines, as JSON.
QByteArray reportJson(const BatchReport &report);
