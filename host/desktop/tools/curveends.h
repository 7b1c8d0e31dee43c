// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/view/viewclient.h"

namespace orvane {

class OrvaneCurve;
class ToolContext;
struct WorkSurface;

//! One end of an open curve of the scene.
struct CurveEnd
{
    bool IsEnd() const { return curve != 0; }

    int curve = 0; // node number; 0 for none
    bool last = false;
    CurvePoint point;
};

//! The end that is seen nearest to a pixel; none within reach of a finger's width of pixels.
CurveEnd endAt(const QPointF &pixel, ToolContext &context);
//! A dot to show it by; none for no end.
QVector<ViewLine> endMark(const CurveEnd &end);

//! The two curves as one: from this end of the first, bridged along the surface, to that end of
//! the second. The first keeps its direction.
CurveShape joinedAt(const CurveShape &first, bool atLast, const CurveShape &second, bool toLast,
                    const WorkSurface &surface);

} // namespace orvane
