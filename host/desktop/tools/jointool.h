// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/curveends.h"
#include "host/desktop/tools/tool.h"

namespace orvane {

//! Makes one curve of two, from end to end.
class JoinTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(JoinTool)

public:
    using Tool::Tool;

    ToolDescription Description() const override;
    const OrvaneCurve *HoveredCurve() const override;
    QVector<ViewLine> Lines() const override;
    QVector<ViewShape> Shapes() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_from = m_to = CurveEnd(); }
    bool hover() override;
    void workOnSelection() override;

private:
    CurveEnd m_from;
    CurveEnd m_to; // under the pointer
};

} // namespace orvane
