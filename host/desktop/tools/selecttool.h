// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/tool.h"

namespace orvane {

//! Selects curves: the one that is clicked, or those in a box or a lasso that is drawn.
class SelectTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(SelectTool)

public:
    enum Area { Box, Lasso };

    SelectTool(ToolContext &context, Area area) : Tool(context), m_area(area) {}

    ToolDescription Description() const override;
    const OrvaneCurve *HoveredCurve() const override;
    QCursor Cursor() const override
    {
        return m_area == Lasso ? Tool::Cursor() : QCursor(Qt::ArrowCursor);
    }
    QVector<ViewShape> Shapes() const override;

protected:
    bool begin(const PointerEvent &event) override;
    void drag(const PointerEvent &event) override;
    void complete() override;
    void forget() override { m_way.clear(); }
    bool hover() override;

private:
    bool isClick() const;
    QPolygonF outline() const;
    QVector<const OrvaneCurve *> found() const;

    Area m_area;
    int m_hovered = 0; // node number
    QPolygonF m_way;   // of the pointer, pixels
    Qt::KeyboardModifiers m_modifiers = Qt::NoModifier;
};

} // namespace orvane
