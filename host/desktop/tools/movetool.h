// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

//! Pulls points of a curve along the surface, their neighbours less and less.
class MoveTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(MoveTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    const OrvaneCurve *HoveredCurve() const override;
    QCursor Cursor() const override;
    QVector<ViewLine> Lines() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override;
    bool hover() override;

private:
    int m_hovered = 0; // node number
    int m_curve = 0;   // node number of the one in hand
    int m_point = -1;  // of its drawn points
    Vector m_grip;     // where it was taken
    double m_depth = 0.0;
    float m_reach = 0.0f; // scene units along the curve
    CurveShape m_shape;   // how it would be
};

} // namespace orvane
