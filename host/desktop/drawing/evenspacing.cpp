// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/evenspacing.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/surfacepath.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const float GoodUnevenness = 0.03f; // fraction of the mean stretch
const float PoorUnevenness = 0.1f;  // fraction of the mean stretch
const int Bisections = 36;          // count
const int Refinements = 3;          // count
const int SharingRounds = 12;       // count
const int MaximumStretches = 20000; // count

// The place on a-b at the distance from the center; a is nearer than that, b is not.
Vector leavingPlace(const Vector &a, const Vector &b, const Vector &center, double distance)
{
    const Vector along = b - a;
    const Vector from = a - center;
    const double square = double(along.LengthSquared());
    const double half = double(Dot(from, along));
    const double rest = double(from.LengthSquared()) - distance * distance;
    const double root = std::sqrt(std::max(0.0, half * half - square * rest));
    const double t = square > 0.0 ? (root - half) / square : 0.0;
    return a + along * float(std::clamp(t, 0.0, 1.0));
}

float unevennessOf(const QVector<Vector> &places)
{
    const int stretches = places.size() - 1;
    if (stretches < 2)
        return 0.0f;
    const float mean = float(lengthOf(places) / stretches);
    float worst = 0.0f;
    for (int i = 0; i < stretches; ++i)
        worst = std::max(worst, std::abs((places[i + 1] - places[i]).Length() - mean));
    return mean > 0.0f ? worst / mean : 0.0f;
}

// Divides a line into stretches that are equal in the straight.
class Dividers
{
public:
    explicit Dividers(const QVector<Vector> &line) : m_line(line)
    {
        m_lengths.append(0.0);
        for (int i = 1; i < line.size(); ++i)
            m_lengths.append(m_lengths.last() + double((line[i] - line[i - 1]).Length()));
    }

    // Both ends and the places between, count stretches.
    QVector<Vector> divide(int count) const
    {
        QVector<double> marks = bestWalk(count);
        QVector<Vector> best = placesAt(marks);
        // At a sharp fold a little more step is a big leap, and what is missing or too much at the
        // end falls to the last stretch. Then all share it, round by round.
        for (int i = 0; i < SharingRounds && unevennessOf(best) > GoodUnevenness; ++i) {
            marks = shared(marks);
            const QVector<Vector> places = placesAt(marks);
            if (unevennessOf(places) < unevennessOf(best))
                best = places;
        }
        return best;
    }

private:
    // Walks in equal straight steps as with a pair of dividers: lengths along the line after each,
    // the start included; count steps unless the line ends before.
    QVector<double> walk(double step, int count) const
    {
        QVector<double> marks = {0.0};
        Vector center = m_line.first();
        Vector from = center; // of the stretch walked on
        int next = 1;
        while (marks.size() <= count) {
            while (next < m_line.size() && double((m_line[next] - center).Length()) < step)
                from = m_line[next++];
            if (next == m_line.size())
                break;
            center = from = leavingPlace(from, m_line[next], center, step);
            marks.append(m_lengths[next - 1] + double((center - m_line[next - 1]).Length()));
        }
        return marks;
    }

    // With the greatest step of which count fit in, found by halving; the last mark is the end.
    QVector<double> bestWalk(int count) const
    {
        double high = m_lengths.last() / count * 1.001;
        double low = 0.0;
        for (int i = 0; i < Bisections; ++i) {
            const double step = 0.5 * (low + high);
            (walk(step, count).size() > count ? low : high) = step;
        }
        QVector<double> marks = walk(low, count);
        marks[count] = m_lengths.last();
        return marks;
    }

    // Marks where the stretches between, taken one after the other, are cut into equal parts.
    QVector<double> shared(const QVector<double> &marks) const
    {
        const QVector<Vector> places = placesAt(marks);
        const int count = marks.size() - 1;
        const double part = lengthOf(places) / count;
        QVector<double> result = marks;
        double walked = 0.0;
        for (int i = 0, mark = 1; i < count; ++i) {
            const double size = double((places[i + 1] - places[i]).Length());
            for (; mark < count && mark * part <= walked + size; ++mark) {
                const double share = size > 0.0 ? (mark * part - walked) / size : 0.0;
                result[mark] = marks[i] + (marks[i + 1] - marks[i]) * share;
            }
            walked += size;
        }
        return result;
    }

    QVector<Vector> placesAt(const QVector<double> &marks) const
    {
        QVector<Vector> places;
        for (double mark : marks) {
            const auto after = std::upper_bound(m_lengths.cbegin(), m_lengths.cend(), mark);
            const int i = qMin(int(after - m_lengths.cbegin()), m_lengths.size() - 1) - 1;
            const double size = m_lengths[i + 1] - m_lengths[i];
            const double share = size > 0.0 ? std::min(1.0, (mark - m_lengths[i]) / size) : 1.0;
            places.append(placeAt(m_line, i + share));
        }
        return places;
    }

    const QVector<Vector> &m_line;
    QVector<double> m_lengths; // by place, along the line up to it
};

CurveShape shapeThrough(const QVector<Vector> &places, bool closed, const SurfaceLocator &surface)
{
    CurveShape shape;
    const int count = closed ? places.size() - 1 : places.size();
    for (int i = 0; i < count; ++i)
        shape.points.append(onSurface(surface, places[i]));
    return closed ? closedThrough(shape.points, surface) : shape;
}

// The best of a few numbers of stretches: at a sharp fold one may not come out even.
CurveShape bestDivision(const QVector<Vector> &line, bool closed, int count,
                        const SurfaceLocator &surface)
{
    const int least = closed ? 3 : 1;
    CurveShape best;
    for (int change : {0, 1, -1, 2, -2}) {
        if (count + change < least)
            continue;
        const QVector<Vector> places = Dividers(line).divide(count + change);
        const CurveShape shape = shapeThrough(places, closed, surface);
        if (best.points.isEmpty() || unevenness(shape) < unevenness(best))
            best = shape;
        if (unevenness(best) <= GoodUnevenness)
            break;
    }
    return best;
}

// The division of ever finer lines: a coarse one lies off the surface between its places.
CurveShape bestRefined(const QVector<Vector> &line, bool closed, int count,
                       const SurfaceLocator &surface)
{
    CurveShape best = bestDivision(line, closed, count, surface);
    float step = float(lengthOf(line) / count) / 8.0f;
    for (int i = 0; i < Refinements && unevenness(best) > GoodUnevenness; ++i, step *= 0.5f) {
        const QVector<QVector<Vector>> finer = followSurface(line, step, surface);
        if (finer.size() != 1)
            break;
        const CurveShape shape = bestDivision(finer.first(), closed, count, surface);
        if (unevenness(shape) < unevenness(best))
            best = shape;
    }
    return best;
}

QVector<Vector> begunAt(const QVector<Vector> &closedLine, int place)
{
    return closedLine.mid(place) + closedLine.mid(1, place);
}

} // namespace

CurveShape evenlySpaced(const QVector<Vector> &line, bool closed, float spacing,
                        const SurfaceLocator &surface)
{
    const double length = lengthOf(line);
    if (!(length > 0.0) || !(spacing > 0.0f))
        return {};
    const double stretches = std::round(length / double(spacing));
    const int count = int(std::clamp(stretches, closed ? 3.0 : 1.0, double(MaximumStretches)));
    const CurveShape best = bestRefined(line, closed, count, surface);
    if (!closed || unevenness(best) <= PoorUnevenness)
        return best;
    // A turn too sharp to step around is no trouble where the steps begin.
    const CurveShape begunAnew =
        bestRefined(begunAt(line, sharpestTurn(line, spacing)), closed, count, surface);
    return unevenness(begunAnew) < unevenness(best) ? begunAnew : best;
}

int sharpestTurn(const QVector<Vector> &line, float reach)
{
    int sharpest = 0;
    float least = 2.0f;
    for (int i = 1; i + 1 < line.size(); ++i) {
        int before = i - 1;
        while (before > 0 && (line[i] - line[before]).Length() < reach)
            --before;
        int after = i + 1;
        while (after + 1 < line.size() && (line[after] - line[i]).Length() < reach)
            ++after;
        const float straightness =
            Dot(Normalized(line[i] - line[before]), Normalized(line[after] - line[i]));
        if (straightness >= least)
            continue;
        least = straightness;
        sharpest = i;
    }
    return sharpest;
}

float unevenness(const CurveShape &shape)
{
    return unevennessOf(placesOf(shape.points));
}

} // namespace orvane
