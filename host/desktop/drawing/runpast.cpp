// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/runpast.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <algorithm>

namespace orvane {

namespace {

using Line = QVector<Vector>;

// Leads the last point of an open stroke across other lines.
class EndRunner
{
public:
    EndRunner(const QVector<CurvePoint> &points, float tolerance, float length,
              const SurfaceLocator &surface)
        : m_points(points), m_tolerance(tolerance), m_length(length), m_surface(surface)
    {}

    void runPast(const Line &other)
    {
        const PlaceOnLine nearest = nearestOnLine(other, m_points.last().position);
        if (other.size() < 2 || !(nearest.distance <= m_tolerance))
            return;
        const double at = betweenPoints(other, nearest.Parameter());
        m_crossing = placeAt(other, at);
        const Vector normal = onSurface(m_surface, m_crossing).surfacePoint.WorldNormal();
        m_across = Normalized(normal & tangentAt(other, at));
        if (height(placeBehind()) > 0.0f)
            m_across *= -1.0f;
        if (m_across == Vector() || height(m_points.last().position) >= 0.5f * m_length)
            return;
        cross();
    }

    const QVector<CurvePoint> &points() const { return m_points; }

private:
    // Above the other line on the side to go to, in scene units.
    float height(const Vector &place) const { return Dot(place - m_crossing, m_across); }

    // Not at a point of the line, where nothing counts as a crossing, nor too near its ends.
    double betweenPoints(const Line &line, double parameter) const
    {
        const int last = line.size() - 2;
        const int stretch = std::clamp(int(parameter), 0, last);
        const double size = double((line[stretch + 1] - line[stretch]).Length());
        const double inset = size > 0.0 ? std::min(0.4, double(m_length) / size) : 0.4;
        const double low = stretch == 0 ? inset : 0.1;
        const double high = stretch == last ? 1.0 - inset : 0.9;
        return stretch + std::clamp(parameter - stretch, low, high);
    }

    // So far back that it tells from which side the stroke comes.
    Vector placeBehind() const
    {
        int i = m_points.size() - 1;
        for (float way = 0.0f; i > 0 && way < 3.0f * m_tolerance; --i)
            way += (m_points[i].position - m_points[i - 1].position).Length();
        return m_points[i].position;
    }

    void cross()
    {
        const Line before = placesOf(m_points);
        const float spacing = float(lengthOf(before) / (before.size() - 1));
        while (m_points.size() > 1 && height(m_points.last().position) > -0.25f * m_length)
            m_points.removeLast();
        if (m_points.size() > 2
            && (m_points.last().position - m_crossing).Length() + m_length < 0.5f * spacing)
            m_points.removeLast();
        m_points.append(onSurface(m_surface, m_crossing + direction() * m_length));
    }

    // Straight on; more across where the stroke comes in at a low angle.
    Vector direction() const
    {
        const Vector ahead = Normalized(m_crossing - m_points.last().position);
        const float across = Dot(ahead, m_across);
        if (across >= 0.5f)
            return ahead;
        return Normalized(ahead + m_across * (1.0f - across));
    }

    QVector<CurvePoint> m_points;
    float m_tolerance; // scene units
    float m_length;    // scene units
    const SurfaceLocator &m_surface;
    Vector m_crossing; // where the other line is to be crossed
    Vector m_across;   // along the surface, to the side to go to, of length 1
};

QVector<CurvePoint> turned(QVector<CurvePoint> points)
{
    std::reverse(points.begin(), points.end());
    return points;
}

} // namespace

CurveShape runPast(const CurveShape &stroke, const QVector<QVector<Vector>> &others,
                   float tolerance, float length, const SurfaceLocator &surface)
{
    const double least = 2.0 * double(tolerance + length);
    if (stroke.closed || stroke.points.size() < 2 || lengthOf(placesOf(stroke.points)) < least)
        return stroke;
    QVector<CurvePoint> points = stroke.points;
    for (int end = 0; end < 2; ++end) {
        EndRunner runner(points, tolerance, length, surface);
        for (const Line &other : others)
            runner.runPast(other);
        points = turned(runner.points());
    }
    return {points, false};
}

} // namespace orvane
