// SPDX-License-Identifier: MIT
#pragma once

#include "graph/crossing.h"

#include <QVector>

#include <cmath>

//! Finds those of many crossings that are of given curves at about given parameters, without a
//! look at all of them.
class CrossingTable
{
public:
    //! The crossings have the numbers 0 to size - 1, in the order they are added.
    explicit CrossingTable(int size) : m_next(size)
    {
        int heads = 1;
        while (heads < size)
            heads *= 2;
        m_heads.fill(-1, heads);
    }

    void add(int number, const Crossing &crossing)
    {
        int &head = m_heads[place(crossing.curveA, crossing.curveB, cell(crossing.parameterA, 0.0),
                                  cell(crossing.parameterB, 0.0))];
        m_next[number] = head;
        head = number;
    }

    //! Calls visit(number) for all of the same curves whose parameters differ by less than Reach,
    //! and for some others.
    template <typename Visitor>
    void visitNear(const Crossing &crossing, Visitor visit) const
    {
        const int lastA = cell(crossing.parameterA, Reach);
        const int lastB = cell(crossing.parameterB, Reach);
        for (int a = cell(crossing.parameterA, -Reach); a <= lastA; ++a) {
            for (int b = cell(crossing.parameterB, -Reach); b <= lastB; ++b) {
                int number = m_heads[place(crossing.curveA, crossing.curveB, a, b)];
                for (; number >= 0; number = m_next[number])
                    visit(number);
            }
        }
    }

private:
    static constexpr double Reach = 0.01; // parameter

    // A cell lies around each pair of samples. Two segments meet once, so that it holds few.
    static int cell(float parameter, double offset)
    {
        return int(std::floor(double(parameter) + offset + 0.5));
    }

    // Those of one segment with curve after curve, as a search meets them, lie side by side.
    int place(int curveA, int curveB, int cellA, int cellB) const
    {
        const quint64 spread = 0x9e3779b97f4a7c15u; // odd, its bits well mixed
        quint64 hash = quint64(curveA);
        for (int part : {cellA, cellB})
            hash = (hash ^ (hash >> 29)) * spread + quint64(part);
        hash *= spread;
        return int(((hash >> 32) + quint64(curveB)) & quint64(m_heads.size() - 1));
    }

    QVector<int> m_heads; // by place: the number added there last, or -1
    QVector<int> m_next;  // by number: the one added at the same place before, or -1
};
