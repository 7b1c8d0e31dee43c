// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <algorithm>

class IntersectionNode;

//! The crossings along one curve, by parameter: the index of the segment's first sample plus the
//! fraction along that segment.
class CurveRecord
{
public:
    const QVector<IntersectionNode *> &nodes() const { return m_nodes; }

    //! The nodes from parameter low to high, both included.
    QVector<IntersectionNode *> nodesBetween(float low, float high) const
    {
        const auto first = std::lower_bound(m_parameters.cbegin(), m_parameters.cend(), low);
        const auto last = std::upper_bound(first, m_parameters.cend(), high);
        return m_nodes.mid(int(first - m_parameters.cbegin()), int(last - first));
    }

    //! Keeps the order by parameter; equal parameters stay in the order they came.
    void insert(float parameter, IntersectionNode *node)
    {
        const auto place = std::upper_bound(m_parameters.cbegin(), m_parameters.cend(), parameter);
        const int index = int(place - m_parameters.cbegin());
        m_parameters.insert(index, parameter);
        m_nodes.insert(index, node);
    }

private:
    QVector<float> m_parameters; // ascending
    QVector<IntersectionNode *> m_nodes;
};
