// SPDX-License-Identifier: MIT
#pragma once

#include "graph/boxlist.h"
#include "graph/numberset.h"

#include <QVector>

//! Answers which of many boxes overlap a box, without a look at all of them: sorted along one axis
//! and cut into strips, each strip sorted along another axis and cut into groups. There is a box
//! around each strip and each group.
class SortedBoxes
{
public:
    //! Takes those boxes of the list that the numbers name, ascending.
    void assign(const QVector<orvane::AxisAlignedBoundingBox> &boxes, const QVector<int> &numbers);

    //! The numbers, ascending and none below first, of the boxes that overlap the box.
    void overlapping(const orvane::AxisAlignedBoundingBox &box, int first,
                     QVector<int> &numbers) const;

private:
    void sort(const QVector<orvane::AxisAlignedBoundingBox> &boxes);
    void makeLevels();
    void searchStrip(int strip, const orvane::AxisAlignedBoundingBox &box) const;

    int m_last = -1;          // highest number
    int m_groupsPerStrip = 1; // but for the last
    QVector<int> m_numbers;   // by strip and place in it
    BoxList m_boxes;          // in the same order
    BoxList m_groups;         // around GroupSize of them each
    BoxList m_strips;         // around m_groupsPerStrip of those each
    mutable QVector<int> m_stripHits;
    mutable QVector<int> m_groupHits;
    mutable QVector<int> m_hits;
    mutable NumberSet m_found;
};
