// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/tool.h"

#include <QMap>

namespace orvane {

//! Smooths what a brush goes over.
class SmoothTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(SmoothTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    LeftDrag UseOfLeftDrag() const override { return LeftDrag::OnSurface; }
    QVector<ViewLine> Lines() const override;
    QVector<ViewShape> Shapes() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    bool hover() override { return true; } // the brush goes with the pointer
    void forget() override { m_shapes.clear(); }
    void workOnSelection() override;

private:
    void rub(const QPointF &pixel);

    QMap<int, CurveShape> m_shapes; // by node number: how the curve would be
};

} // namespace orvane
