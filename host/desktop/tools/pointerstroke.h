// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/stroke.h"
#include "host/desktop/view/viewclient.h"

#include <optional>

namespace orvane {

class ToolContext;
struct WorkSurface;

//! A stroke that follows the pointer over a surface.
class PointerStroke
{
public:
    PointerStroke(const WorkSurface &surface, ToolContext &context);

    //! The stroke goes through this place, wherever the pointer is.
    void GoThrough(const SurfacePoint &place) { m_stroke.Add(place); }
    //! The pointer moved; what is beside the surface is left out, and so is all once the surface
    //! is not the one it was begun on.
    void Follow(const QPointF &from, const QPointF &to, ToolContext &context);
    QVector<CurveShape> Finish(ToolContext &context) const;

    //! What there is so far, how it would close, its partner across the mirror.
    QVector<ViewLine> Lines() const;

private:
    bool isOn(const WorkSurface &surface) const;

    Stroke m_stroke;
    int m_meshID;
    int m_mirrorAxis;
    Vector m_center; // of the surface
};

} // namespace orvane
