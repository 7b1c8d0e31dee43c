// SPDX-License-Identifier: MIT
#include "graph/sortedboxes.h"

#include <algorithm>
#include <cmath>
#include <limits>

using orvane::AxisAlignedBoundingBox;

namespace {

const int GroupSize = 16; // boxes

using Boxes = QVector<AxisAlignedBoundingBox>;

float along(const orvane::Vector &v, int axis)
{
    return axis == 0 ? v.x : axis == 1 ? v.y : v.z;
}

// About how many boxes a box meets along the axis.
double crowding(const Boxes &boxes, const QVector<int> &numbers, int axis)
{
    double widths = 0.0;
    float low = std::numeric_limits<float>::infinity();
    float high = -low;
    for (int number : numbers) {
        const float minimum = along(boxes.at(number).minimum, axis);
        const float maximum = along(boxes.at(number).maximum, axis);
        widths += double(maximum) - double(minimum);
        low = std::min(low, minimum);
        high = std::max(high, maximum);
    }
    const double result = widths / (double(high) - double(low));
    return std::isnan(result) ? std::numeric_limits<double>::infinity() : result;
}

void sortAlong(int axis, const Boxes &boxes, int *begin, int *end)
{
    std::sort(begin, end, [&boxes, axis](int a, int b) {
        return along(boxes.at(a).minimum, axis) < along(boxes.at(b).minimum, axis);
    });
}

// A box around every so many neighbours.
void wrap(const BoxList &boxes, int size, BoxList &wrapped)
{
    wrapped.resize((boxes.size() + size - 1) / size);
    for (int i = 0; i < wrapped.size(); ++i)
        wrapped.set(i, boxes.around(i * size, std::min((i + 1) * size, boxes.size())));
}

} // namespace

void SortedBoxes::assign(const Boxes &boxes, const QVector<int> &numbers)
{
    m_numbers.resize(numbers.size());
    std::copy(numbers.cbegin(), numbers.cend(), m_numbers.begin());
    m_last = numbers.isEmpty() ? -1 : numbers.last();
    m_found.setRange(numbers.isEmpty() ? 0 : numbers.first(), m_last);
    // As many groups in a strip as there are strips.
    m_groupsPerStrip = 1 + int(std::sqrt(m_numbers.size() / GroupSize));
    sort(boxes);
    makeLevels();
}

void SortedBoxes::sort(const Boxes &boxes)
{
    const double crowdings[] = {crowding(boxes, m_numbers, 0), crowding(boxes, m_numbers, 1),
                                crowding(boxes, m_numbers, 2)};
    int axes[] = {0, 1, 2};
    std::sort(axes, axes + 3, [&crowdings](int a, int b) { return crowdings[a] < crowdings[b]; });
    sortAlong(axes[0], boxes, m_numbers.begin(), m_numbers.end());
    const int stripSize = m_groupsPerStrip * GroupSize;
    for (int first = 0; first < m_numbers.size(); first += stripSize)
        sortAlong(axes[1], boxes, m_numbers.begin() + first,
                  m_numbers.begin() + std::min(first + stripSize, m_numbers.size()));
    m_boxes.resize(m_numbers.size());
    for (int i = 0; i < m_numbers.size(); ++i)
        m_boxes.set(i, boxes.at(m_numbers[i]));
}

void SortedBoxes::makeLevels()
{
    wrap(m_boxes, GroupSize, m_groups);
    wrap(m_groups, m_groupsPerStrip, m_strips);
    m_stripHits.resize(m_strips.size() + BoxLanes);
    m_groupHits.resize(m_groupsPerStrip + BoxLanes);
    m_hits.resize(m_groupsPerStrip * GroupSize + BoxLanes);
}

void SortedBoxes::overlapping(const AxisAlignedBoundingBox &box, int first,
                              QVector<int> &numbers) const
{
    numbers.resize(0);
    if (first > m_last)
        return;
    const int strips = m_strips.overlapping(0, m_strips.size(), box, m_stripHits.data());
    for (int i = 0; i < strips; ++i)
        searchStrip(m_stripHits[i], box);
    m_found.takeFrom(first, numbers);
}

void SortedBoxes::searchStrip(int strip, const AxisAlignedBoundingBox &box) const
{
    const int firstGroup = strip * m_groupsPerStrip;
    const int lastGroup = std::min(firstGroup + m_groupsPerStrip, m_groups.size());
    const int groups = m_groups.overlapping(firstGroup, lastGroup, box, m_groupHits.data());
    for (int i = 0; i < groups; ++i) {
        const int begins = m_groupHits[i] * GroupSize;
        while (i + 1 < groups && m_groupHits[i + 1] == m_groupHits[i] + 1)
            ++i; // neighbours are looked through in one go
        const int ends = std::min((m_groupHits[i] + 1) * GroupSize, m_boxes.size());
        const int count = m_boxes.overlapping(begins, ends, box, m_hits.data());
        for (int hit = 0; hit < count; ++hit)
            m_found.add(m_numbers.at(m_hits.at(hit)));
    }
}
