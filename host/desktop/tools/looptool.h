// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/cuttercache.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

struct WorkSurface;

//! Lays closed curves around limbs.
class LoopTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(LoopTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    LeftDrag UseOfLeftDrag() const override { return LeftDrag::OnSurface; }
    QVector<ViewLine> Lines() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_loop = CurveShape(); }
    bool hover() override;

private:
    //! No points when there is none.
    CurveShape loop(const WorkSurface &surface);

    CutterCache m_cutters;
    QPointF m_from;
    QPointF m_to;
    CurveShape m_loop; // the one that is proposed
};

} // namespace orvane
