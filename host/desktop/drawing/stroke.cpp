// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/stroke.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/evenspacing.h"
#include "host/desktop/drawing/surfacepath.h"

namespace orvane {

namespace {

const float ThinStep = 0.125f;        // fraction of the spacing: closer hits tell nothing new
const float FollowStep = 0.25f;       // fraction of the spacing
const float ClickLength = 0.5f;       // fraction of the spacing
const float MaximumUnevenness = 0.1f; // fraction of the mean stretch
const int MaximumCuts = 8;            // count, one inside the other
const float LeastLoop = 3.0f;         // times closeDistance: a shorter stroke never got away
const float LeastStretches = 4.0f;    // times the spacing: what is shorter encloses nothing

float distance(const CurvePoint &a, const CurvePoint &b)
{
    return (b.position - a.position).Length();
}

bool isClosing(double length, float gap, const StrokeSettings &settings)
{
    return gap <= settings.closeDistance && length >= double(LeastLoop * settings.closeDistance)
           && length >= double(LeastStretches * settings.spacing);
}

// A hand that closes a loop often runs past its start: what lies behind the place nearest to the
// start would make the seam turn back.
QVector<Vector> withoutOverrun(QVector<Vector> line, float closeDistance)
{
    int nearest = line.size() - 1;
    for (int i = line.size() - 1; i > 0; --i) {
        const float gap = (line[i] - line.first()).Length();
        if (gap > 2.0f * closeDistance)
            break;
        if (gap < (line[nearest] - line.first()).Length())
            nearest = i;
    }
    line.resize(nearest + 1);
    return line;
}

// Turns what was drawn into curves.
class StrokeFinisher
{
public:
    StrokeFinisher(const StrokeSettings &settings, const SurfaceLocator &surface)
        : m_settings(settings), m_step(settings.spacing * FollowStep), m_surface(surface)
    {}

    QVector<CurveShape> shapes(const QVector<CurvePoint> &hits)
    {
        const QVector<QVector<Vector>> lines = cutAtLeaps(hits);
        if (lines.size() == 1 && addClosed(lines.first()))
            return m_shapes;
        for (const QVector<Vector> &line : lines)
            addLine(line, false);
        return m_shapes;
    }

private:
    QVector<QVector<Vector>> cutAtLeaps(const QVector<CurvePoint> &hits) const
    {
        QVector<QVector<Vector>> lines;
        for (int first = 0, i = 1; i <= hits.size(); ++i) {
            const bool goesOn =
                i < hits.size() && distance(hits[i - 1], hits[i]) <= m_settings.longestBridge;
            if (goesOn)
                continue;
            lines += followSurface(placesOf(hits.mid(first, i - first)), m_step, m_surface);
            first = i;
        }
        return lines;
    }

    bool addClosed(const QVector<Vector> &line)
    {
        const float gap = (line.last() - line.first()).Length();
        if (!isClosing(lengthOf(line), gap, m_settings))
            return false;
        QVector<Vector> loop = withoutOverrun(line, m_settings.closeDistance);
        loop.append(loop.first());
        const QVector<QVector<Vector>> seamless = followSurface(loop, m_step, m_surface);
        if (seamless.size() != 1)
            return false;
        addLine(seamless.first(), true);
        return true;
    }

    void addLine(const QVector<Vector> &line, bool closed)
    {
        if (isClick(line))
            return;
        for (const QVector<Vector> &smooth : smoothed(line, closed))
            addEven(smooth, closed && smooth.first() == smooth.last(), MaximumCuts);
    }

    bool isClick(const QVector<Vector> &line) const
    {
        return lengthOf(line) < double(ClickLength * m_settings.spacing);
    }

    void addEven(const QVector<Vector> &line, bool closed, int cutsLeft)
    {
        if (isClick(line))
            return;
        const CurveShape shape = evenlySpaced(line, closed, m_settings.spacing, m_surface);
        const int turn = sharpestTurn(line, m_settings.spacing);
        if (closed || cutsLeft == 0 || turn == 0 || unevenness(shape) <= MaximumUnevenness) {
            if (shape.points.size() > 1)
                m_shapes.append(shape);
            return;
        }
        addEven(line.mid(0, turn + 1), false, cutsLeft - 1);
        addEven(line.mid(turn), false, cutsLeft - 1);
    }

    // At edges and creases smoothing leaves gaps: the way along the surface closes them.
    QVector<QVector<Vector>> smoothed(const QVector<Vector> &line, bool closed) const
    {
        if (!(m_settings.smoothing > 0.0f))
            return {line};
        const QVector<Vector> smooth =
            smoothedAlong(line, closed, m_settings.smoothing, m_step, m_surface);
        return followSurface(smooth, m_step, m_surface);
    }

    const StrokeSettings &m_settings;
    float m_step; // scene units
    const SurfaceLocator &m_surface;
    QVector<CurveShape> m_shapes;
};

} // namespace

void Stroke::Add(const SurfacePoint &hit)
{
    if (!hit.IsOnValidFace() || !hit.WorldPosition().IsFinite())
        return;
    const CurvePoint point(hit);
    const int count = m_hits.size();
    const float thin = ThinStep * m_settings.spacing;
    const bool isPointerOnly = count > 1 && distance(m_hits[count - 2], m_hits[count - 1]) < thin;
    // What it leaps from is an end, perhaps of a curve.
    if (isPointerOnly && distance(m_hits.last(), point) < thin) {
        m_hits.last() = point;
        return;
    }
    if (count > 1)
        m_length += double(distance(m_hits[count - 2], m_hits[count - 1]));
    m_isWhole =
        m_isWhole && (count == 0 || distance(m_hits.last(), point) <= m_settings.longestBridge);
    m_hits.append(point);
}

bool Stroke::WouldClose() const
{
    return m_isWhole && m_hits.size() > 2
           && isClosing(m_length + double(distance(m_hits[m_hits.size() - 2], m_hits.last())),
                        distance(m_hits.first(), m_hits.last()), m_settings);
}

QVector<CurveShape> Stroke::Finish(const SurfaceLocator &surface) const
{
    return StrokeFinisher(m_settings, surface).shapes(m_hits);
}

} // namespace orvane
