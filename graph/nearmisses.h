// SPDX-License-Identifier: MIT
#pragma once

#include "graph/curverecord.h"
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

    void note(int curveA, float parameterA, int curveB, float parameterB,
              const orvane::Vector &place);

    //! Each place once, but for those that a crossing found right next to them makes up for.
    QVector<PointOnCurve> unresolved(const QVector<CurveRecord> &records) const;

private:
    struct Meeting
    {
        int curveA;
        float parameterA;
        int curveB;
        float parameterB;
        orvane::Vector place;
    };

    QVector<Meeting> m_meetings;
};
