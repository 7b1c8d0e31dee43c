// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

namespace orvane {

//! A place on a line of straight stretches: stretch i runs from place i to place i + 1.
struct PlaceOnLine
{
    double Parameter() const { return double(stretch) + double(fraction); }

    int stretch = -1;      // -1: the line has no place
    float fraction = 0.0f; // of the stretch, 0 to 1
    Vector place;
    float distance = 0.0f; // from what was asked for, in scene units
};

//! In scene units; 0 for fewer than two places.
double lengthOf(const QVector<Vector> &line);

//! Of equally near places the first.
PlaceOnLine nearestOnLine(const QVector<Vector> &line, const Vector &to);

//! The place at a parameter from 0 to the number of stretches; beyond them the ends.
Vector placeAt(const QVector<Vector> &line, double parameter);

//! The direction of the stretch there, of length 1; at a corner the mean of both. Beyond the ends
//! that of the end. Zero for a line without length there.
Vector tangentAt(const QVector<Vector> &line, double parameter);

//! The distance along the line from its beginning to the parameter, in scene units.
double lengthUpTo(const QVector<Vector> &line, double parameter);

//! The part between two parameters, first to last, ends included; last is not below first.
QVector<Vector> partOf(const QVector<Vector> &line, double first, double last);

} // namespace orvane
