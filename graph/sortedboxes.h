// SPDX-License-Identifier: MIT
#pragma once

#include "graph/boxlist.h"

#include <QVector>

//! Answers which of many boxes overlap a box, without a look at all of them: sorted along one
//! axis, with a box around every few neighbours.
class SortedBoxes
{
public:
    //! Takes those boxes of the list that the numbers name, ascending.
    void assign(const BoxList &boxes, const QVector<int> &numbers);

    //! The numbers, ascending and none below first, of the boxes that overlap the box.
    void overlapping(const orvane::AxisAlignedBoundingBox &box, int first,
                     QVector<int> &numbers) const;

private:
    void sortAlongAxis(const BoxList &boxes);
    void makeGroups();

    int m_axis = 0;
    QVector<int> m_numbers; // by smallest coordinate along the axis
    BoxList m_boxes;        // in the same order
    BoxList m_groups;       // around GroupSize of them each
    QVector<float> m_reach; // largest coordinate along the axis up to each group
    mutable QVector<int> m_groupHits;
    mutable QVector<int> m_hits;
};
