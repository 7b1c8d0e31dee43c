// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QStringList>
#include <QVector>

//! Strokes in the plane z = 0, about the origin.
struct Drawing
{
    int segmentCount() const;

    double side = 0.0; // of the square that holds all strokes, scene units
    QVector<QVector<orvane::Vector>> strokes;
};

//! Names of the planar shapes of input, the ordinary ones first.
QStringList inputShapes();
//! Those of them that no rule of the search favours: overlaps, repetitions, common points.
QStringList degenerateShapes();

//! A drawing of about so many segments, the same on every run. Crossings grow in proportion to the
//! segments, and segments, gaps and crossings look the same at every size: the square grows.
//! Empty for an unknown name.
//!   lattice, lattice30, lattice75: wavy strokes across each other, turned by so many degrees, so
//!       that all boxes of curves overlap; 2.5 crossings a segment
//!   chords: long straight strokes from rim to rim of a disc; about 2.4 crossings a segment
//!   strokes: short strokes of 8 segments, anywhere; about 1.1 crossings a segment
//!   scribble: one stroke that crosses itself about as often
//!   overlapping: a lattice, each stroke drawn again half a segment further along itself
//!   tangent: strokes that touch straight ones with their corners
//!   duplicate: a lattice, each stroke drawn twice
//!   zerolength: a lattice, each point drawn twice
//!   onepoint: strokes that all pass through one point; half a crossing a segment
Drawing drawingOf(const QString &shape, int segments);
