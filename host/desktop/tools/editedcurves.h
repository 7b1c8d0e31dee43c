// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/newcurves.h"

#include <QMap>

namespace orvane {

class CurveStep;

//! Gives curves, by node number, other shapes: as evenly spaced as they were, and clear of all
//! other curves. A number that no curve has is passed by. Answers whether anything was changed.
bool applyEdits(const QMap<int, CurveShape> &shapes, CurveStep &step, ToolContext &context);

} // namespace orvane
