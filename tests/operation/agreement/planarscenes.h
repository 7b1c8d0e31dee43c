// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QString>
#include <QVector>

#include <random>

struct PlanarStroke
{
    QVector<orvane::Vector> places; // z = 0; without a closing point
    bool closed = false;
};

//! A drawing on a flat sheet from (0, 0) to (PlanarSheetSize, PlanarSheetSize), and the settings
//! to build it with, in the operation's units.
struct PlanarScene
{
    QString kind;
    QVector<PlanarStroke> strokes;
    float mergeDistance = 0.0f;
    float overrun = 0.0f;
    bool selfIntersections = false;
};

const int PlanarSheetSize = 48; // unit quads along each side

//! By number: wavy strokes, chords, loops with spokes, figure-eights, or some of each; 10 to 60
//! strokes. Every second round of kinds merges crossings that lie close together.
PlanarScene randomScene(int number, std::mt19937 &random);
