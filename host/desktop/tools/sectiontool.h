// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/cuttercache.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

struct WorkSurface;

//! Cuts the model along a straight line on the screen.
class SectionTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(SectionTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    QVector<ViewLine> Lines() const override;
    QVector<ViewShape> Shapes() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_shapes.clear(); }

private:
    bool isCut() const;
    QVector<CurveShape> cut(const WorkSurface &surface);
    QVector<CurveShape> wholeLoops(const WorkSurface &surface);

    CutterCache m_cutters;
    QPointF m_from;
    QPointF m_to;
    bool m_whole = false; // all around
    QVector<CurveShape> m_shapes;
};

} // namespace orvane
