// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curvecutting.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <cmath>

namespace orvane {

namespace {

const float LeastPart = 0.01f; // fraction of a stretch: a shorter rest of it is left out

// The part of a stretch inside the ball, as fractions of it; nothing when last <= first.
struct Inside
{
    double first = 1.0;
    double last = 0.0;
};

Inside insideBall(const Vector &a, const Vector &b, const Vector &center, float radius)
{
    const Vector along = b - a;
    const Vector from = a - center;
    const double square = double(along.LengthSquared());
    const double half = double(Dot(from, along));
    const double rest = double(from.LengthSquared()) - double(radius) * double(radius);
    if (!(square > 0.0))
        return {};
    const double under = half * half - square * rest;
    if (under <= 0.0)
        return {};
    const double root = std::sqrt(under);
    return {qMax(0.0, (-half - root) / square), qMin(1.0, (-half + root) / square)};
}

class Eraser
{
public:
    Eraser(const QVector<CurvePoint> &points, const SurfaceLocator &surface)
        : m_points(points), m_line(placesOf(points)), m_surface(surface)
    {}

    // What is left, in order; parameters as along the line.
    QVector<CurveShape> rest(const Vector &center, float radius)
    {
        double from = 0.0;
        for (int i = 0; i + 1 < m_line.size(); ++i) {
            const Inside inside = insideBall(m_line[i], m_line[i + 1], center, radius);
            if (inside.last <= inside.first)
                continue;
            m_isCut = true;
            keep(from, i + inside.first);
            from = i + inside.last;
        }
        keep(from, m_line.size() - 1);
        return m_rest;
    }

    bool isCut() const { return m_isCut; }

private:
    void keep(double from, double to)
    {
        if (to - from < double(LeastPart))
            return;
        CurveShape part;
        if (std::ceil(from) - from > double(LeastPart))
            part.points.append(onSurface(m_surface, placeAt(m_line, from)));
        for (int i = int(std::ceil(from)); i <= to; ++i)
            part.points.append(m_points[i]);
        if (to - std::floor(to) > double(LeastPart))
            part.points.append(onSurface(m_surface, placeAt(m_line, to)));
        if (part.points.size() > 1)
            m_rest.append(part);
    }

    const QVector<CurvePoint> m_points;
    const QVector<Vector> m_line;
    const SurfaceLocator &m_surface;
    QVector<CurveShape> m_rest;
    bool m_isCut = false;
};

int pointOutside(const QVector<CurvePoint> &points, const Vector &center, float radius)
{
    for (int i = 0; i < points.size(); ++i) {
        if ((points[i].position - center).Length() > radius)
            return i;
    }
    return -1;
}

} // namespace

QVector<CurveShape> erased(const CurveShape &shape, const Vector &center, float radius,
                           const SurfaceLocator &surface)
{
    QVector<CurvePoint> points = drawnPoints(shape);
    if (shape.closed) {
        const int start = pointOutside(points, center, radius);
        if (start < 0)
            return {};
        // Once around from a point outside, so that no piece is cut at the seam; when that point
        // is on both ends the two pieces there are one.
        points = points.mid(start) + points.mid(0, start + 1);
    }
    Eraser eraser(points, surface);
    const QVector<CurveShape> rest = eraser.rest(center, radius);
    if (!eraser.isCut())
        return {shape};
    if (!shape.closed || rest.size() < 2)
        return rest;
    QVector<CurveShape> joined = rest.mid(1);
    joined.last().points += rest.first().points.mid(1);
    return joined;
}

} // namespace orvane
