// SPDX-License-Identifier: MIT
#include "graph/nearmisses.h"

#include "graph/crossingtable.h"

#include <cmath>

namespace {

const float EndWidth = 1e-5f;       // fraction of a segment; rounding of the crossing test
const float SamePlaceWidth = 1e-3f; // parameter; nearer than any two places one would draw

bool isNearEnd(float fraction)
{
    return std::fabs(fraction) <= EndWidth || std::fabs(fraction - 1.0f) <= EndWidth;
}

bool isOnSegment(float fraction)
{
    return -EndWidth <= fraction && fraction <= 1.0f + EndWidth;
}

bool isSameParameter(float a, float b)
{
    return std::fabs(a - b) <= SamePlaceWidth;
}

bool isOfSameCurves(const Crossing &a, const Crossing &b)
{
    return a.curveA == b.curveA && a.curveB == b.curveB;
}

bool isSamePlace(const Crossing &a, const Crossing &b)
{
    return isOfSameCurves(a, b) && isSameParameter(a.parameterA, b.parameterA)
           && isSameParameter(a.parameterB, b.parameterB);
}

bool isNextTo(float parameter, float meeting)
{
    return meeting - SamePlaceWidth <= parameter && parameter <= meeting + SamePlaceWidth;
}

bool makesUpFor(const Crossing &crossing, const Crossing &meeting)
{
    return isOfSameCurves(crossing, meeting) && isNextTo(crossing.parameterA, meeting.parameterA)
           && isNextTo(crossing.parameterB, meeting.parameterB);
}

} // namespace

bool NearMisses::isOnEnd(float ta, float tb)
{
    return isOnSegment(ta) && isOnSegment(tb) && (isNearEnd(ta) || isNearEnd(tb));
}

void NearMisses::note(const Crossing &meeting, const orvane::Vector &place)
{
    m_meetings.append({meeting, place});
}

QVector<PointOnCurve> NearMisses::unresolved(const QVector<Crossing> &crossings) const
{
    if (m_meetings.isEmpty())
        return {};
    CrossingTable table(m_meetings.size());
    for (int i = 0; i < m_meetings.size(); ++i)
        table.add(i, m_meetings[i].crossing);
    QVector<bool> isOut(m_meetings.size());
    for (const Crossing &crossing : crossings) {
        table.visitNear(crossing, [&](int i) {
            if (makesUpFor(crossing, m_meetings[i].crossing))
                isOut[i] = true;
        });
    }
    QVector<PointOnCurve> result;
    for (int i = 0; i < m_meetings.size(); ++i) {
        if (isOut[i])
            continue;
        const Crossing &m = m_meetings[i].crossing;
        result.append({m.curveA, m.curveB, m_meetings[i].place});
        // The same place is met from both segments at the point.
        table.visitNear(m, [&](int later) {
            if (isSamePlace(m_meetings[later].crossing, m))
                isOut[later] = true;
        });
    }
    return result;
}
