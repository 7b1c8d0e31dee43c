// SPDX-License-Identifier: MIT
#include "graph/curverecords.h"

#include <algorithm>
#include <numeric>

CurveRecords::CurveRecords(int curveCount, const QVector<Crossing> &crossings)
    : m_starts(curveCount + 1), m_stops(2 * crossings.size())
{
    countStops(crossings);
    placeStops(crossings);
    for (int k = 0; k < curveCount; ++k) {
        std::stable_sort(m_stops.begin() + m_starts[k], m_stops.begin() + m_starts[k + 1],
                         [](const Stop &a, const Stop &b) { return a.parameter < b.parameter; });
    }
}

void CurveRecords::countStops(const QVector<Crossing> &crossings)
{
    for (const Crossing &crossing : crossings) {
        ++m_starts[crossing.curveA + 1];
        ++m_starts[crossing.curveB + 1];
    }
    std::partial_sum(m_starts.cbegin(), m_starts.cend(), m_starts.begin());
}

void CurveRecords::placeStops(const QVector<Crossing> &crossings)
{
    QVector<int> next = m_starts;
    for (int i = 0; i < crossings.size(); ++i) {
        const Crossing &crossing = crossings[i];
        m_stops[next[crossing.curveA]++] = {crossing.parameterA, i};
        m_stops[next[crossing.curveB]++] = {crossing.parameterB, i};
    }
}
