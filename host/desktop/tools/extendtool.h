// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/curveends.h"
#include "host/desktop/tools/pointerstroke.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

//! Draws on from an end of a curve.
class ExtendTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(ExtendTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    LeftDrag UseOfLeftDrag() const override { return LeftDrag::OnSurface; }
    const OrvaneCurve *HoveredCurve() const override;
    QVector<ViewLine> Lines() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_stroke.reset(); }
    bool hover() override;

private:
    CurveEnd m_end; // under the pointer, or the one that is drawn on from
    std::optional<PointerStroke> m_stroke;
};

} // namespace orvane
