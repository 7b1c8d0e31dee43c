// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curvecontact.h"

#include "host/desktop/drawing/curvemeasure.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const float StretchReach = 1e-4f;  // fraction of the stretch
const float RoundingReach = 4e-7f; // fraction of the largest coordinate
const float FirstNudge = 0.02f;    // fraction of the stretch
const float LastNudge = 0.2f;      // fraction of the stretch
const int StretchesPerRun = 16;    // count
const int ClearingPasses = 4;      // count: a nudge may touch what the pass before had cleared

using Line = QVector<Vector>;

float largestCoordinate(const Vector &v)
{
    return std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
}

bool isOnStretch(const Vector &point, const Vector &a, const Vector &b)
{
    const Vector along = b - a;
    const float square = along.LengthSquared();
    const float share = square > 0.0f ? Dot(point - a, along) / square : 0.0f;
    const Vector nearest = a + along * std::clamp(share, 0.0f, 1.0f);
    const float reach =
        std::max(StretchReach * std::sqrt(square), RoundingReach * largestCoordinate(point));
    return (point - nearest).LengthSquared() <= reach * reach;
}

// The other lines in runs of a few stretches, with boxes that hold everything within reach.
class Obstacles
{
public:
    explicit Obstacles(const QVector<Line> &lines)
    {
        for (const Line &line : lines) {
            for (int first = 0; first < line.size(); first += StretchesPerRun)
                addRun(line, first);
        }
    }

    bool holdPoint(const Vector &point) const
    {
        for (const Run &run : m_runs) {
            if (!meet(run.box, point, point))
                continue;
            for (int i = 0; i + 1 < run.places.size(); ++i) {
                if (isOnStretch(point, run.places[i], run.places[i + 1]))
                    return true;
            }
        }
        return false;
    }

    bool havePointOn(const Vector &a, const Vector &b) const
    {
        AxisAlignedBoundingBox box;
        box.Extend(a);
        box.Extend(b);
        box.Grow(StretchReach * (b - a).Length());
        for (const Run &run : m_runs) {
            if (!meet(run.box, box.minimum, box.maximum))
                continue;
            for (const Vector &place : run.places) {
                if (isOnStretch(place, a, b))
                    return true;
            }
        }
        return false;
    }

private:
    struct Run
    {
        Line places;
        AxisAlignedBoundingBox box;
    };

    void addRun(const Line &line, int first)
    {
        Run run;
        run.places = line.mid(first, StretchesPerRun + 1);
        for (const Vector &place : qAsConst(run.places))
            run.box.Extend(place);
        const float size = run.box.Diagonal() + largestCoordinate(line[first]);
        run.box.Grow(StretchReach * size);
        m_runs.append(run);
    }

    static bool meet(const AxisAlignedBoundingBox &box, const Vector &low, const Vector &high)
    {
        return low.x <= box.maximum.x && low.y <= box.maximum.y && low.z <= box.maximum.z
               && high.x >= box.minimum.x && high.y >= box.minimum.y && high.z >= box.minimum.z;
    }

    QVector<Run> m_runs;
};

bool stretchTouches(const Line &line, int stretch, const Obstacles &obstacles)
{
    return stretch >= 0 && stretch + 1 < line.size()
           && obstacles.havePointOn(line[stretch], line[stretch + 1]);
}

// Moves the points of one shape away from the obstacles.
class Clearing
{
public:
    Clearing(const CurveShape &shape, const Obstacles &obstacles, const SurfaceLocator &surface)
        : m_shape(shape), m_obstacles(obstacles), m_surface(surface)
    {}

    CurveShape cleared()
    {
        for (int pass = 0; pass < ClearingPasses; ++pass) {
            bool isClear = true;
            const int count = drawnPoints(m_shape).size();
            for (int i = 0; i < count; ++i) {
                if (!touchesAt(m_shape, i))
                    continue;
                isClear = false;
                nudge(i);
            }
            if (isClear)
                break;
        }
        return m_shape;
    }

private:
    // The point itself, the stretches to its neighbours, and the closing point behind the first.
    bool touchesAt(const CurveShape &shape, int index) const
    {
        const Line line = placesOf(shape.points);
        if (m_obstacles.holdPoint(line[index]) || stretchTouches(line, index - 1, m_obstacles)
            || stretchTouches(line, index, m_obstacles))
            return true;
        const bool holdsSeam = shape.closed && index == 0;
        return holdsSeam
               && (m_obstacles.holdPoint(line.last())
                   || stretchTouches(line, line.size() - 2, m_obstacles));
    }

    void nudge(int index)
    {
        const Line line = placesOf(m_shape.points);
        const int other = index + 1 < line.size() ? index + 1 : index - 1;
        if (other < 0)
            return;
        const float stretch = (line[other] - line[index]).Length();
        const Vector along = tangentAt(line, index);
        const Vector normal = onSurface(m_surface, line[index]).surfacePoint.WorldNormal();
        const Vector sideways = Normalized(normal & along);
        // A loose end goes outwards: inwards it would no longer reach what it came to.
        const Vector ahead = index == 0 && !m_shape.closed ? -along : along;
        // Where a point lies on a point only a slanting way leaves both stretches.
        const QVector<Vector> directions = {ahead,
                                            -ahead,
                                            sideways,
                                            -sideways,
                                            ahead + sideways,
                                            ahead - sideways,
                                            sideways - ahead,
                                            -ahead - sideways};
        for (float part = FirstNudge; part < LastNudge; part *= 2.0f) {
            for (const Vector &direction : directions) {
                const CurveShape moved = movedTo(index, line[index] + direction * (part * stretch));
                if (touchesAt(moved, index))
                    continue;
                m_shape = moved;
                return;
            }
        }
    }

    CurveShape movedTo(int index, const Vector &place) const
    {
        QVector<CurvePoint> points = drawnPoints(m_shape);
        points[index] = onSurface(m_surface, place);
        return likeBefore(m_shape, points, m_surface);
    }

    CurveShape m_shape;
    const Obstacles &m_obstacles;
    const SurfaceLocator &m_surface;
};

} // namespace

bool touches(const QVector<Vector> &line, const QVector<QVector<Vector>> &others)
{
    const Obstacles obstacles(others);
    for (int i = 0; i < line.size(); ++i) {
        if (obstacles.holdPoint(line[i]) || stretchTouches(line, i, obstacles))
            return true;
    }
    return false;
}

CurveShape clearOf(const CurveShape &shape, const QVector<QVector<Vector>> &others,
                   const SurfaceLocator &surface)
{
    if (shape.points.size() < 2)
        return shape;
    const Obstacles obstacles(others);
    return Clearing(shape, obstacles, surface).cleared();
}

} // namespace orvane
