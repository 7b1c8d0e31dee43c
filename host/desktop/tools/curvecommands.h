// SPDX-License-Identifier: MIT
#pragma once

namespace orvane {

class ToolContext;

//! What can be done to curves without a gesture. Each answers whether anything was done, and is
//! one undo step. "Selected" leaves out hidden curves, but for showing them. Where curves come out
//! changed or new, none touches another.

bool deleteSelectedCurves();
//! The copies lie beside their curves and are selected in their place.
bool duplicateSelectedCurves(ToolContext &context);
//! Adds each curve's partner across the middle of its surface; axis: 0 x, 1 y, 2 z.
bool mirrorSelectedCurves(ToolContext &context, int axis);
bool closeSelectedCurves(ToolContext &context);
bool openSelectedCurves(ToolContext &context);
bool reverseSelectedCurves(ToolContext &context);
//! Evenly spaced anew, by the spacing of the settings.
bool resampleSelectedCurves(ToolContext &context);
bool smoothSelectedCurves(ToolContext &context);
//! One curve of two; false unless exactly two open ones are selected.
bool joinSelectedCurves(ToolContext &context);

bool selectAllCurves();
bool selectNoCurves();
bool invertCurveSelection();

bool hideSelectedCurves();
bool hideUnselectedCurves();
bool showAllCurves();

} // namespace orvane
