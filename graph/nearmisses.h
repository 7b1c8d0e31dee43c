// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossing.h"
#include "graph/pointoncurve.h"

#include <QVector>

//! Gathers the places where a curve passes through a stored point of another: the crossing test
//! leaves those out on both sides of the point, and whoever drew the curves wants to know.
class NearMisses
{
public:
    //! Does a fraction of a refused crossing lie on an end of its segment, give or take rounding,
    //! and the other one on its segment too?
    static bool isOnEnd(float ta, float tb);

    //! place: in world space.
    void note(const Crossing &meeting, const orvane::Vector &place);

    //! Each place once, but for those that a crossing found right next to them makes up for.
    QVector<PointOnCurve> unresolved(const QVector<Crossing> &crossings) const;

private:
    struct Meeting
    {
        Crossing crossing;
        orvane::Vector place;
    };

    QVector<Meeting> m_meetings;
};
