// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossing.h"

#include <QVector>

//! The crossings along each curve, by parameter; those with the same one in the order they came.
class CurveRecords
{
public:
    //! sampleCounts: by curve; parameters are between 0 and it.
    CurveRecords(const QVector<int> &sampleCounts, const QVector<Crossing> &crossings);

    int size(int curve) const { return firstStop(curve + 1) - firstStop(curve); }
    //! The index of a curve's i-th crossing; one of the curve with itself is there twice.
    int crossing(int curve, int i) const { return m_stops[firstStop(curve) + i].crossing; }

private:
    struct Stop
    {
        float parameter;
        int crossing;
    };

    int cell(int curve, float parameter) const;
    int firstStop(int curve) const { return m_starts[m_firstCells[curve]]; }
    void countStops(const QVector<Crossing> &crossings);
    void placeStops(const QVector<Crossing> &crossings);
    void sortCells();

    // A cell for each sample holds the stops from there to the next: a few, soon sorted.
    QVector<int> m_firstCells; // by curve; one more at the end
    QVector<int> m_starts;     // by cell: where in m_stops; one more at the end
    QVector<Stop> m_stops;     // of all cells, one after the other
};
