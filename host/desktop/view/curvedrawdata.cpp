// SPDX-License-Identifier: MIT
#include "host/desktop/view/curvedrawdata.h"

#include <orvane/geometry/orvanecurve.h>

#include <algorithm>
#include <tuple>

namespace orvane {

namespace {

CurveLook lookOf(const OrvaneCurve &curve, const OrvaneCurve *hovered)
{
    if (&curve == hovered)
        return CurveLook::Hovered;
    return curve.Selected() ? CurveLook::Selected : CurveLook::Normal;
}

bool isSameStrip(const CurveStrip &a, const CurveStrip &b)
{
    return std::tie(a.curve, a.first, a.count, a.look)
           == std::tie(b.curve, b.first, b.count, b.look);
}

} // namespace

QColor curveColour(CurveLook look)
{
    switch (look) {
    case CurveLook::Selected:
        return QColor(255, 158, 44);
    case CurveLook::Hovered:
        return QColor(255, 232, 140);
    case CurveLook::Normal:
        break;
    }
    return QColor(52, 196, 214);
}

float curveWidth(CurveLook look)
{
    return look == CurveLook::Normal ? 2.0f : 3.0f;
}

// A curve that changes its points gets a new array while we share the old one.
bool CurveDrawData::Source::operator==(const Source &other) const
{
    return curve == other.curve && closed == other.closed
           && points.constData() == other.points.constData()
           && points.size() == other.points.size();
}

int CurveDrawData::Update(const QVector<const OrvaneCurve *> &curves, const OrvaneCurve *hovered)
{
    QVector<Source> sources;
    for (const OrvaneCurve *curve : curves) {
        if (curve->IsUsable())
            sources.append({curve, curve->Points(), curve->Closed()});
    }
    int changed = 0;
    if (sources != m_sources) {
        m_sources = sources;
        rebuild();
        changed = PositionsPart;
    }
    const QVector<CurveStrip> strips = stripsInOrder(hovered);
    if (!std::equal(strips.begin(), strips.end(), m_strips.cbegin(), m_strips.cend(), isSameStrip))
        changed |= StripsPart;
    m_strips = strips;
    return changed;
}

void CurveDrawData::rebuild()
{
    m_positions.clear();
    m_firstOf.clear();
    for (const Source &source : qAsConst(m_sources)) {
        m_firstOf.append(m_positions.size());
        for (const CurvePoint &point : source.points)
            m_positions.append(point.position);
        // Covers the hair's breadth that the closing point leaves.
        if (source.closed)
            m_positions.append(source.points.first().position);
    }
    m_firstOf.append(m_positions.size());
}

QVector<CurveStrip> CurveDrawData::stripsInOrder(const OrvaneCurve *hovered) const
{
    QVector<CurveStrip> strips;
    for (int i = 0; i < m_sources.size(); ++i) {
        const OrvaneCurve *curve = m_sources[i].curve;
        strips.append(
            {curve, m_firstOf[i], m_firstOf[i + 1] - m_firstOf[i], lookOf(*curve, hovered)});
    }
    std::stable_sort(strips.begin(), strips.end(),
                     [](const CurveStrip &a, const CurveStrip &b) { return a.look < b.look; });
    return strips;
}

} // namespace orvane
