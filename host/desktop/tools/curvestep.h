// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/drawing/curveshape.h"

namespace orvane {

class Operation;
class OrvaneCurve;

//! The changes of one gesture or command: whatever is done through one of these is one undo step.
//! Each answers whether anything was changed.
class CurveStep
{
public:
    //! title: for the Edit menu, a text of the translation context "UndoStep"; null leaves it to
    //! the first operation.
    explicit CurveStep(const char *title = nullptr) : m_title(title) {}

    //! A new curve, called "curve" and the lowest number that is free.
    bool Add(const CurveShape &shape, bool selected = false);
    bool Edit(const OrvaneCurve &curve, const CurveShape &shape);
    bool Delete(const QVector<OrvaneCurve *> &curves);
    //! These curves are selected afterwards and no others; geometries stay as they are.
    bool Select(const QVector<OrvaneCurve *> &curves);
    bool Show(const QVector<OrvaneCurve *> &curves, bool show);

    bool IsEmpty() const { return !m_begun; }

private:
    bool run(Operation *operation, bool interactive);

    const char *m_title;
    bool m_begun = false;
};

} // namespace orvane
