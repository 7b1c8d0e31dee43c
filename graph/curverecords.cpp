// SPDX-License-Identifier: MIT
#include "graph/curverecords.h"

#include <algorithm>
#include <numeric>

namespace {

const int FewStops = 16; // up to so many are sorted faster where they are

template <typename Iterator, typename Less>
void insertionSort(Iterator begin, Iterator end, Less isLess)
{
    for (Iterator next = begin; next != end; ++next)
        std::rotate(std::upper_bound(begin, next, *next, isLess), next, next + 1);
}

} // namespace

CurveRecords::CurveRecords(const QVector<int> &sampleCounts, const QVector<Crossing> &crossings)
    : m_firstCells(sampleCounts.size() + 1), m_stops(2 * crossings.size())
{
    // One cell more, because the last parameter may be rounded up to the number of samples.
    for (int k = 0; k < sampleCounts.size(); ++k)
        m_firstCells[k + 1] = m_firstCells.at(k) + sampleCounts.at(k) + 1;
    m_starts.fill(0, m_firstCells.last() + 1);
    countStops(crossings);
    placeStops(crossings);
    sortCells();
}

int CurveRecords::cell(int curve, float parameter) const
{
    return std::min(m_firstCells.at(curve) + int(parameter), m_firstCells.at(curve + 1) - 1);
}

void CurveRecords::countStops(const QVector<Crossing> &crossings)
{
    for (const Crossing &crossing : crossings) {
        ++m_starts[cell(crossing.curveA, crossing.parameterA) + 1];
        ++m_starts[cell(crossing.curveB, crossing.parameterB) + 1];
    }
    std::partial_sum(m_starts.cbegin(), m_starts.cend(), m_starts.begin());
}

void CurveRecords::placeStops(const QVector<Crossing> &crossings)
{
    QVector<int> next = m_starts;
    for (int i = 0; i < crossings.size(); ++i) {
        const Crossing &crossing = crossings.at(i);
        m_stops[next[cell(crossing.curveA, crossing.parameterA)]++] = {crossing.parameterA, i};
        m_stops[next[cell(crossing.curveB, crossing.parameterB)]++] = {crossing.parameterB, i};
    }
}

void CurveRecords::sortCells()
{
    const auto isLess = [](const Stop &a, const Stop &b) {
        return a.parameter < b.parameter;
    };
    for (int cell = 0; cell < m_firstCells.last(); ++cell) {
        const auto begin = m_stops.begin() + m_starts.at(cell);
        const auto end = m_stops.begin() + m_starts.at(cell + 1);
        if (end - begin <= FewStops)
            insertionSort(begin, end, isLess);
        else
            std::stable_sort(begin, end, isLess);
    }
}
