// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

using orvane::Stream;

// The stored layout, older than this code: a bool between the tolerances, counts before the
// number lists. Undo histories and scene files hold it.

namespace {

template <typename T>
T *readReference(Stream &stream)
{
    return dynamic_cast<T *>(stream.ReadNode());
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
    for (int i = 0; i < geometryCount && stream.IsOk(); ++i) {
        auto *geometry = readReference<orvane::Geometry>(stream);
        // Damaged bytes may name one twice; it can be destroyed only once.
        m_addGeometry.append(m_addGeometry.contains(geometry) ? nullptr : geometry);
    }
    // Not emptied first: a fresh operation has none, and the layout relies on that.
    for (int i = 0; i < curveCount && stream.IsOk(); ++i)
        m_curves.append(readReference<orvane::OrvaneCurve>(stream));
}
