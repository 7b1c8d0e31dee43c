// SPDX-License-Identifier: MIT
#include "tests/support/strokes.h"

#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <cmath>

using orvane::CurvePoint;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const float Pi = 3.14159265f;

} // namespace

Sheet::Sheet(int size, const orvane::Matrix &placement, const QString &name)
    : m_geometry(addToScene(gridOfQuads(size, size), name, placement)), m_size(size)
{}

orvane::SubdivisionLevel *Sheet::mesh() const
{
    return m_geometry->CurrentLevel();
}

CurvePoint Sheet::point(const Vector &place) const
{
    const float side = float(m_size);
    const bool isOn = place.x >= 0.0f && place.x <= side && place.y >= 0.0f && place.y <= side;
    if (!isOn)
        return CurvePoint(m_geometry->Placement()->ToWorld(place));
    const int column = qMin(int(place.x), m_size - 1);
    const int row = qMin(int(place.y), m_size - 1);
    const Vector lift = m_geometry->Placement()->ToWorld(place)
                        - m_geometry->Placement()->ToWorld(Vector(place.x, place.y, 0.0f));
    orvane::SurfacePoint surface(*mesh(), row * m_size + column, place.x - float(column),
                                 place.y - float(row));
    surface.Shift(lift);
    return CurvePoint(surface);
}

OrvaneCurve *Sheet::add(const QVector<Vector> &places, bool closed)
{
    auto *curve = new OrvaneCurve; // the scene's
    for (const Vector &place : places)
        curve->AppendPoint(point(place));
    curve->SetClosed(closed);
    orvane::Kernel()->Scene()->AddCurve(curve);
    m_curves.append(curve);
    return curve;
}

OrvaneCurve *Sheet::stroke(const QVector<Vector> &places)
{
    return add(places, false);
}

OrvaneCurve *Sheet::loop(const QVector<Vector> &places)
{
    OrvaneCurve *curve = add(places, true);
    if (curve->PointCount() > 0) {
        const Vector closing = curve->ClosingPosition();
        curve->AppendPoint(point(m_geometry->Placement()->ToLocal(closing)));
    }
    return curve;
}

OrvaneCurve *Sheet::straight(const Vector &from, const Vector &to, int points)
{
    return wavy(from, to, points, 0.0f);
}

OrvaneCurve *Sheet::wavy(const Vector &from, const Vector &to, int points, float amplitude,
                         float waves)
{
    const Vector side = orvane::Normalized(Vector(0, 0, 1) & (to - from));
    QVector<Vector> places;
    for (int i = 0; i < points; ++i) {
        const float t = float(i) / float(points - 1);
        places.append(from + (to - from) * t
                      + side * (amplitude * std::sin(2.0f * Pi * waves * t)));
    }
    return stroke(places);
}

OrvaneCurve *Sheet::circle(const Vector &center, float radius, int points, float startAngle)
{
    QVector<Vector> places;
    for (int i = 0; i < points; ++i) {
        const float angle = startAngle + 2.0f * Pi * float(i) / float(points);
        places.append(center + Vector(std::cos(angle), std::sin(angle), 0.0f) * radius);
    }
    return loop(places);
}

OrvaneCurve *Sheet::figureEight(const Vector &center, float radius, int points)
{
    QVector<Vector> places;
    for (int i = 0; i < points; ++i) {
        // From one loose end of the eight to the other; the middle of each half turn is the center.
        const float angle = 2.0f * Pi * (float(i) + 0.5f) / float(points) - 0.5f * Pi;
        places.append(center + Vector(std::sin(angle), std::sin(2.0f * angle), 0.0f) * radius);
    }
    return stroke(places);
}

void Sheet::grid(int columns, int rows, float step)
{
    const float middle = 0.5f * float(m_size);
    const float left = middle - 0.5f * step * float(columns);
    const float bottom = middle - 0.5f * step * float(rows);
    const float half = 0.5f * step;
    for (int i = 0; i <= rows; ++i) {
        const float y = bottom + step * float(i);
        straight({left - half, y, 0.0f}, {left + step * float(columns) + half, y, 0.0f});
    }
    for (int i = 0; i <= columns; ++i) {
        const float x = left + step * float(i);
        straight({x, bottom - half, 0.0f}, {x, bottom + step * float(rows) + half, 0.0f});
    }
}
