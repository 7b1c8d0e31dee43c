// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"
#include "host/desktop/tools/tool.h"

#include <QMap>

namespace orvane {

struct Brush;
class CurveStep;

//! Rubs out what a brush goes over.
class EraseTool : public Tool
{
    Q_DECLARE_TR_FUNCTIONS(EraseTool)

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
    void forget() override { m_touched.clear(); }

private:
    struct Touched
    {
        CurveShape original;
        QVector<CurveShape> pieces; // what is left so far
        QVector<bool> gone;         // by stretch of the original
    };

    void rub(const QPointF &pixel);
    void rubCurve(int id, const Brush &brush);

    QMap<int, Touched> m_touched; // by node number
};

} // namespace orvane
