// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/curvedrawdata.h"
#include "host/desktop/viewport/cardarray.h"
#include "host/desktop/viewport/plainshaders.h"

namespace orvane {

struct Frame;

//! Draws the visible curves, each with a dark rim that keeps it apart from any surface.
class CurveRenderer
{
public:
    //! hovered: the curve to be highlighted, or null. faint: the plain ones step back.
    void Draw(const Frame &frame, const QVector<const OrvaneCurve *> &curves,
              const OrvaneCurve *hovered, bool faint);

private:
    void drawLines(const Frame &frame, float strength);
    void drawStrips(const Frame &frame, float rim, float strength);
    void drawPoints(const Frame &frame, float strength);
    QColor colourOf(const CurveStrip &strip, bool rim, float strength) const;

    CurveDrawData m_data;
    CardArray m_positions;
    float m_plainStrength = 1.0f; // of curves that are neither selected nor hovered
    PlainShader m_plain;
    DotShader m_dots;
};

} // namespace orvane
