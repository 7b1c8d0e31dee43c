// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>

//! Calls visit(a, b) for each side of a ring of vertex numbers.
template <typename Visitor>
void forEachSide(const QVector<int> &ring, Visitor visit)
{
    for (int i = 0; i < ring.size(); ++i)
        visit(ring[i], ring[i + 1 == ring.size() ? 0 : i + 1]);
}

//! Signed area in the x-y plane, positive when counter-clockwise; in double precision.
double ringArea(const QVector<int> &ring, const QVector<orvane::Vector> &positions);

//! Do the corners of a counter-clockwise ring add up to a clockwise turn? So they do where notches
//! are deep: each corner counts by the area of the triangle that it spans with those beside it.
//! Tracing tells faces from outer boundaries by this sum and takes such a ring for the other.
bool turnsOver(const QVector<int> &ring, const QVector<orvane::Vector> &positions);

double longestSide(const QVector<int> &ring, const QVector<orvane::Vector> &positions);
