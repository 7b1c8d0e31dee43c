// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/sectionline.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"

#include <orvane/geometry/surfacelocator.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {

namespace {

const double Pi = 3.14159265358979;
const int Directions = 24; // count, over half a turn
const int Refinements = 4; // count: each halves the angle between neighbouring directions
const double None = std::numeric_limits<double>::infinity();

using Line = QVector<Vector>;

struct NearestLine
{
    int index = -1; // among the lines
    PlaceOnLine place;
};

NearestLine nearestLine(const QVector<SectionLine> &lines, const Vector &to, bool closedOnly)
{
    NearestLine best;
    for (int i = 0; i < lines.size(); ++i) {
        if (closedOnly && !lines[i].closed)
            continue;
        const PlaceOnLine place = nearestOnLine(placesOf(lines[i]), to);
        if (best.index < 0 || place.distance < best.place.distance)
            best = {i, place};
    }
    return best;
}

QVector<CurveShape> curvesOf(const QVector<SectionLine> &lines, float spacing,
                             const SurfaceLocator &surface)
{
    QVector<CurveShape> curves;
    for (const SectionLine &line : lines) {
        const CurveShape curve = evenlySpaced(placesOf(line), line.closed, spacing, surface);
        if (curve.points.size() > 1)
            curves.append(curve);
    }
    return curves;
}

// Mean of the distances to the eye along a line, each stretch by its length.
double meanDistance(const Line &line, const Vector &eye)
{
    double sum = 0.0;
    double length = 0.0;
    for (int i = 0; i + 1 < line.size(); ++i) {
        const double size = double((line[i + 1] - line[i]).Length());
        sum += size * double(((line[i] + line[i + 1]) * 0.5f - eye).Length());
        length += size;
    }
    return length > 0.0 ? sum / length : None;
}

Line reversedLine(Line line)
{
    std::reverse(line.begin(), line.end());
    return line;
}

// From parameter a around the seam of a closed line to b, which is below it.
Line aroundSeam(const Line &line, double a, double b)
{
    return partOf(line, a, line.size() - 1) + partOf(line, 0.0, b).mid(1);
}

Line wayBetween(const SectionLine &section, double a, double b, const Vector &eye)
{
    const Line line = placesOf(section);
    const double low = std::min(a, b);
    const double high = std::max(a, b);
    Line way = partOf(line, low, high);
    if (a > b)
        way = reversedLine(way);
    if (!section.closed)
        return way;
    Line other = aroundSeam(line, high, low);
    if (a < b)
        other = reversedLine(other);
    return meanDistance(other, eye) < meanDistance(way, eye) ? other : way;
}

// How far sideways, from one ray to another, a place is seen; 0 on the first.
class Sideways
{
public:
    Sideways(const Ray &from, const Ray &to, const Plane &plane)
        : m_origin(from.origin), m_across(Normalized(plane.normal & from.direction))
    {
        const Vector middle = to.origin + Normalized(to.direction);
        if (Dot(middle - from.origin, m_across) < 0.0f)
            m_across *= -1.0f;
        m_along = Normalized(from.direction);
        m_isParallel = (Normalized(from.direction) - Normalized(to.direction)).Length() < 1e-6f;
    }

    float of(const Vector &place) const
    {
        const Vector offset = place - m_origin;
        const float across = Dot(offset, m_across);
        return m_isParallel ? across : std::atan2(across, Dot(offset, m_along));
    }

private:
    Vector m_origin;
    Vector m_across;
    Vector m_along;
    bool m_isParallel;
};

// From the hit as long as the line leads on sideways: up to the silhouette, where it turns behind
// the shape. A closed line is begun anew at the hit.
Line upToSilhouette(const SectionLine &section, double hit, const Sideways &sideways)
{
    const Line line = placesOf(section);
    Line forward = partOf(line, hit, line.size() - 1);
    Line back = reversedLine(partOf(line, 0.0, hit));
    if (section.closed) {
        const Line ahead = forward;
        forward += reversedLine(back).mid(1);
        back += reversedLine(ahead).mid(1);
    }
    const auto leads = [&sideways](const Line &way) {
        return way.size() > 1 && sideways.of(way[1]) > sideways.of(way[0]);
    };
    const Line way = leads(forward) ? forward : back;
    int last = 0;
    while (last + 1 < way.size() && sideways.of(way[last + 1]) > sideways.of(way[last]))
        ++last;
    return way.mid(0, last + 1);
}

Plane planeOf(const Ray &from, const Ray &to)
{
    const Vector along = Normalized(from.direction);
    const Vector other = to.origin + Normalized(to.direction) - from.origin;
    return {from.origin, Normalized(along & other)};
}

// Square to each other and to the normal.
struct Tangents
{
    explicit Tangents(const Vector &normal)
    {
        const Vector axis = std::abs(normal.x) < 0.6f ? Vector(1, 0, 0) : Vector(0, 1, 0);
        first = Normalized(axis & normal);
        second = normal & first;
    }

    Vector first;
    Vector second;
};

class LoopSearch
{
public:
    LoopSearch(const MeshCutter &cutter, const SurfacePoint &picked)
        : m_cutter(cutter), m_point(picked.WorldPosition()), m_tangents(picked.WorldNormal())
    {}

    Plane shortest()
    {
        const double step = Pi / Directions;
        for (int i = 0; i < Directions; ++i)
            attempt(i * step);
        if (m_length == None)
            return {m_point, {}};
        for (double turn = 0.5 * step, i = 0; i < Refinements; turn *= 0.5, ++i) {
            const double middle = m_angle;
            attempt(middle - turn);
            attempt(middle + turn);
        }
        return planeAt(m_angle);
    }

private:
    Plane planeAt(double angle) const
    {
        return {m_point, m_tangents.first * float(std::cos(angle))
                             + m_tangents.second * float(std::sin(angle))};
    }

    void attempt(double angle)
    {
        const QVector<SectionLine> lines = m_cutter.Cut(planeAt(angle));
        const NearestLine nearest = nearestLine(lines, m_point, true);
        if (nearest.index < 0)
            return;
        const double length = lengthOf(placesOf(lines[nearest.index]));
        // A loop that passes elsewhere says nothing about the limb here.
        if (double(nearest.place.distance) > 0.01 * length || length >= m_length)
            return;
        m_length = length;
        m_angle = angle;
    }

    const MeshCutter &m_cutter;
    Vector m_point;
    Tangents m_tangents;
    double m_length = None; // scene units
    double m_angle = 0.0;   // radians
};

} // namespace

QVector<CurveShape> sectionCurves(const MeshCutter &cutter, const Plane &plane, float spacing,
                                  const SurfaceLocator &surface)
{
    return curvesOf(cutter.Cut(plane), spacing, surface);
}

QVector<CurveShape> straightSection(const MeshCutter &cutter, const Ray &from, const Ray &to,
                                    float spacing, const SurfaceLocator &surface)
{
    const Plane plane = planeOf(from, to);
    const QVector<SectionLine> lines = cutter.Cut(plane);
    const SurfacePoint first = surface.Pick(from.origin, from.direction);
    const SurfacePoint last = surface.Pick(to.origin, to.direction);
    if (lines.isEmpty() || first.FaceIndex() < 0 || last.FaceIndex() < 0)
        return curvesOf(lines, spacing, surface);
    const NearestLine a = nearestLine(lines, first.WorldPosition(), false);
    const NearestLine b = nearestLine(lines, last.WorldPosition(), false);
    QVector<Line> ways;
    if (a.index == b.index) {
        const Vector eye = (from.origin + to.origin) * 0.5f;
        ways = {wayBetween(lines[a.index], a.place.Parameter(), b.place.Parameter(), eye)};
    } else {
        ways = {upToSilhouette(lines[a.index], a.place.Parameter(), Sideways(from, to, plane)),
                upToSilhouette(lines[b.index], b.place.Parameter(), Sideways(to, from, plane))};
    }
    QVector<CurveShape> curves;
    for (const Line &way : qAsConst(ways)) {
        const CurveShape curve = evenlySpaced(way, false, spacing, surface);
        if (curve.points.size() > 1)
            curves.append(curve);
    }
    return curves;
}

CurveShape loopAround(const MeshCutter &cutter, const Plane &plane, float spacing,
                      const SurfaceLocator &surface)
{
    const QVector<SectionLine> lines = cutter.Cut(plane);
    const NearestLine nearest = nearestLine(lines, plane.point, true);
    if (nearest.index < 0)
        return {};
    return evenlySpaced(placesOf(lines[nearest.index]), true, spacing, surface);
}

Plane planeAcross(const Vector &from, const Vector &to)
{
    return {(from + to) * 0.5f, Normalized(to - from)};
}

Plane shortestLoopPlane(const MeshCutter &cutter, const SurfacePoint &picked)
{
    return LoopSearch(cutter, picked).shortest();
}

} // namespace orvane
