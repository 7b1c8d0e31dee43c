// SPDX-License-Identifier: MIT
#include "graph/sortedboxes.h"

#include <algorithm>
#include <limits>

using orvane::AxisAlignedBoundingBox;

namespace {

const int GroupSize = 16; // boxes

float along(const orvane::Vector &v, int axis)
{
    return axis == 0 ? v.x : axis == 1 ? v.y : v.z;
}

// About how many boxes a box meets along the axis.
double crowding(const BoxList &boxes, const QVector<int> &numbers, int axis)
{
    double widths = 0.0;
    float low = std::numeric_limits<float>::infinity();
    float high = -low;
    for (int number : numbers) {
        const float minimum = boxes.minimum(axis)[number];
        const float maximum = boxes.maximum(axis)[number];
        widths += double(maximum) - double(minimum);
        low = std::min(low, minimum);
        high = std::max(high, maximum);
    }
    return widths / (double(high) - double(low));
}

} // namespace

void SortedBoxes::assign(const BoxList &boxes, const QVector<int> &numbers)
{
    m_numbers.resize(numbers.size());
    std::copy(numbers.cbegin(), numbers.cend(), m_numbers.begin());
    sortAlongAxis(boxes);
    makeGroups();
}

void SortedBoxes::sortAlongAxis(const BoxList &boxes)
{
    const double crowdings[] = {crowding(boxes, m_numbers, 0), crowding(boxes, m_numbers, 1),
                                crowding(boxes, m_numbers, 2)};
    m_axis = int(std::min_element(crowdings, crowdings + 3) - crowdings);
    const float *minimum = boxes.minimum(m_axis);
    std::sort(m_numbers.begin(), m_numbers.end(),
              [minimum](int a, int b) { return minimum[a] < minimum[b]; });
    m_boxes.resize(m_numbers.size());
    for (int i = 0; i < m_numbers.size(); ++i)
        m_boxes.set(i, boxes.at(m_numbers[i]));
}

void SortedBoxes::makeGroups()
{
    const int count = (m_boxes.size() + GroupSize - 1) / GroupSize;
    m_groups.resize(count);
    m_reach.resize(count);
    m_groupHits.resize(count + BoxLanes);
    m_hits.resize(m_boxes.size() + BoxLanes);
    float reach = -std::numeric_limits<float>::infinity();
    for (int i = 0; i < count; ++i) {
        const int first = i * GroupSize;
        m_groups.set(i, m_boxes.around(first, std::min(first + GroupSize, m_boxes.size())));
        reach = std::max(reach, m_groups.maximum(m_axis)[i]);
        m_reach[i] = reach;
    }
}

void SortedBoxes::overlapping(const AxisAlignedBoundingBox &box, int first,
                              QVector<int> &numbers) const
{
    numbers.resize(0);
    // Groups before these end before the box begins; groups after these begin after it ends.
    const auto begin =
        std::lower_bound(m_reach.cbegin(), m_reach.cend(), along(box.minimum, m_axis));
    const float *starts = m_groups.minimum(m_axis);
    const float *end =
        std::upper_bound(starts, starts + m_groups.size(), along(box.maximum, m_axis));
    const int groups = m_groups.overlapping(int(begin - m_reach.cbegin()), int(end - starts), box,
                                            m_groupHits.data());
    for (int i = 0; i < groups; ++i) {
        const int begins = m_groupHits[i] * GroupSize;
        while (i + 1 < groups && m_groupHits[i + 1] == m_groupHits[i] + 1)
            ++i; // neighbours are looked through in one go
        const int ends = std::min((m_groupHits[i] + 1) * GroupSize, m_boxes.size());
        const int count = m_boxes.overlapping(begins, ends, box, m_hits.data());
        for (int hit = 0; hit < count; ++hit) {
            if (m_numbers[m_hits[hit]] >= first)
                numbers.append(m_numbers[m_hits[hit]]);
        }
    }
    std::sort(numbers.begin(), numbers.end());
}
