// SPDX-License-Identifier: MIT
#include "graph/nearmisses.h"

#include "graph/intersectionnode.h"

#include <QHash>
#include <QPair>

#include <algorithm>
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
    QHash<QPair<int, int>, QVector<Meeting>> kept; // by the two curves
    QVector<PointOnCurve> result;
    for (const Meeting &m : m_meetings) {
        // The same place is met from both segments at the point.
        QVector<Meeting> &others = kept[{m.curveA, m.curveB}];
        bool known = std::any_of(others.cbegin(), others.cend(), [&m](const Meeting &other) {
            return isSameParameter(other.parameterA, m.parameterA)
                   && isSameParameter(other.parameterB, m.parameterB);
        });
        const QVector<IntersectionNode *> onB = nodesNear(records[m.curveB], m.parameterB);
        for (IntersectionNode *node : nodesNear(records[m.curveA], m.parameterA))
            known = known || onB.contains(node);
        if (known)
            continue;
        others.append(m);
        result.append({m.curveA, m.curveB, m.place});
    }
    return result;
}
