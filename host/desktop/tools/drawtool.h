// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/pointerstroke.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

//! Draws curves on the surface.
class DrawTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(DrawTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    LeftDrag UseOfLeftDrag() const override { return LeftDrag::OnSurface; }
    QVector<ViewLine> Lines() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_stroke.reset(); }

private:
    std::optional<PointerStroke> m_stroke;
};

} // namespace orvane
