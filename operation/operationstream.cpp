// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

using orvane::Stream;

// The stored layout, older than this code: a bool between the tolerances, counts before the
// number lists. Undo histories and scene files hold it.

namespace {

template <typename T, typename List>
void readReferences(Stream &stream, int count, List &list)
{
    for (int i = 0; i < count && stream.IsOk(); ++i)
        list.append(dynamic_cast<T *>(stream.ReadNode()));
}

} // namespace

void ManualRetopoOperation::Serialize(Stream &stream)
{
    stream.Transfer(m_firstExecution);
    stream.Transfer(m_maxEdges);
    stream.Transfer(m_mergeDistance);
    stream.Transfer(m_intersectionTolerance);
    stream.Transfer(m_useSelfIntersections);
    stream.Transfer(m_overrunTolerance);
    int geometryCount = m_addGeometry.size();
    int curveCount = m_curves.size();
    stream.Transfer(geometryCount);
    stream.Transfer(curveCount);
    stream.Transfer(m_geometryIDs);
    stream.Transfer(m_companionIDs);
    stream.Transfer(m_meshIDs);
    if (stream.IsWriting()) {
        for (const orvane::Geometry *geometry : qAsConst(m_addGeometry))
            stream.WriteNode(geometry);
        for (const orvane::OrvaneCurve *curve : qAsConst(m_curves))
            stream.WriteNode(curve);
        return;
    }
    m_addGeometry.clear();
    readReferences<orvane::Geometry>(stream, geometryCount, m_addGeometry);
    // Not emptied first: a fresh operation has none, and the layout relies on that.
    readReferences<orvane::OrvaneCurve>(stream, curveCount, m_curves);
}
