// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

//! What `quillmesh build` was asked for, in the units of the settings dialog.
struct BuildOptions
{
    QString mesh;
    QString curves;
    QString output;
    int maximumEdges = 5;
    float mergePercent = 30.0f;    // of the average edge length
    float tolerancePercent = 5.0f; // of the average edge length
    float overrunPercent = 35.0f;  // of an open curve's end segment
    float bindPercent = 2.0f;      // of the mesh's diagonal
    bool useSelfIntersections = false;
    bool acceptFaults = true;
    bool json = false;
    QString dump;                  // empty: none
    QString picture;               // empty: none
    QString scene;                 // empty: none
    QString language;              // of what the tool says
    QSize pictureSize{1600, 1200}; // pixels
};

//! What `quillmesh picture` was asked for.
struct PictureOptions
{
    QString mesh;
    QString curves; // empty: none
    QString output;
    QSize size{1600, 1200}; // pixels
};

//! What `quillmesh replay` was asked for.
struct ReplayOptions
{
    QString scene;
    QString commands;
    QString output;
    bool acceptFaults = true;
    bool salvage = false; // go on with what can be read of a damaged scene
    QStringList pluginFolders;
    QString language; // of what the tool says
};
