// SPDX-License-Identifier: MIT
#include "graph/nearmisses.h"

#include "graph/intersectionnode.h"

#include <cmath>

namespace {

const float EndWidth = 1e-5f;      // fraction of a segment; rounding of the crossing test
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

QVector<IntersectionNode *> nodesNear(const CurveRecord &record, float parameter)
{
    return record.nodesBetween(parameter - SamePlaceWidth, parameter + SamePlaceWidth);
}

} // namespace

bool NearMisses::isOnEnd(float ta, float tb)
{
    return isOnSegment(ta) && isOnSegment(tb) && (isNearEnd(ta) || isNearEnd(tb));
}

void NearMisses::note(int curveA, float parameterA, int curveB, float parameterB,
                      const orvane::Vector &place)
{
    m_meetings.append({curveA, parameterA, curveB, parameterB, place});
}

QVector<PointOnCurve> NearMisses::unresolved(const QVector<CurveRecord> &records) const
{
    QVector<Meeting> kept;
    QVector<PointOnCurve> result;
    for (const Meeting &m : m_meetings) {
        bool known = false;
        // The same place is met from both segments at the point, one right after the other.
        for (int i = kept.size() - 1; i >= 0 && kept[i].curveA == m.curveA && !known; --i) {
            known = kept[i].curveB == m.curveB && isSameParameter(kept[i].parameterA, m.parameterA)
                    && isSameParameter(kept[i].parameterB, m.parameterB);
        }
        const QVector<IntersectionNode *> onB = nodesNear(records[m.curveB], m.parameterB);
        for (IntersectionNode *node : nodesNear(records[m.curveA], m.parameterA))
            known = known || onB.contains(node);
        if (known)
            continue;
        kept.append(m);
        result.append({m.curveA, m.curveB, m.place});
    }
    return result;
}
