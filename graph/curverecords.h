// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossing.h"

#include <QVector>

//! The crossings along each curve, by parameter; those with the same one in the order they came.
class CurveRecords
{
public:
    CurveRecords(int curveCount, const QVector<Crossing> &crossings);

    int curveCount() const { return m_starts.size() - 1; }
    int size(int curve) const { return m_starts[curve + 1] - m_starts[curve]; }
    //! The index of a curve's i-th crossing; one of the curve with itself is there twice.
    int crossing(int curve, int i) const { return m_stops[m_starts[curve] + i].crossing; }

private:
    struct Stop
    {
        float parameter;
        int crossing;
    };

    void countStops(const QVector<Crossing> &crossings);
    void placeStops(const QVector<Crossing> &crossings);

    QVector<int> m_starts; // by curve: where in m_stops; one more at the end
    QVector<Stop> m_stops; // of all curves, one after the other
};
