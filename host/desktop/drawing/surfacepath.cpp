// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/surfacepath.h"

#include "host/desktop/drawing/curvemeasure.h"
#include "host/desktop/drawing/curveshape.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const int ExtraHalvings = 6;       // count, for the way to bend at creases
const int MaximumHalvings = 20;    // count
const int MaximumPlaces = 1 << 16; // count, of a line that is smoothed

class SurfaceFollower
{
public:
    SurfaceFollower(float step, const SurfaceLocator &surface) : m_step(step), m_surface(surface) {}

    QVector<QVector<Vector>> lines(const QVector<Vector> &places)
    {
        for (const Vector &place : places) {
            if (m_lines.isEmpty())
                m_lines.append({place});
            else if (place != m_lines.last().last())
                goTo(place, halvings((place - m_lines.last().last()).Length()));
        }
        return m_lines;
    }

private:
    int halvings(float length) const
    {
        const float parts = std::max(1.0f, length / m_step);
        return std::min(MaximumHalvings, int(std::ceil(std::log2(parts))) + ExtraHalvings);
    }

    void goTo(const Vector &place, int halvingsLeft)
    {
        const Vector from = m_lines.last().last();
        if ((place - from).Length() <= m_step) {
            m_lines.last().append(place);
            return;
        }
        if (halvingsLeft == 0) {
            m_lines.append({place});
            return;
        }
        const Vector middle = onSurface(m_surface, from + (place - from) * 0.5f).position;
        goTo(middle, halvingsLeft - 1);
        goTo(place, halvingsLeft - 1);
    }

    float m_step;
    const SurfaceLocator &m_surface;
    QVector<QVector<Vector>> m_lines;
};

// Evenly along the line, both ends included.
QVector<Vector> evenlyAlong(const QVector<Vector> &line, float step)
{
    const double length = lengthOf(line);
    const int count =
        int(std::clamp(std::round(length / double(step)), 1.0, double(MaximumPlaces)));
    QVector<Vector> places = {line.first()};
    double walked = 0.0;
    int stretch = 0;
    for (int i = 1; i < count; ++i) {
        const double target = length * i / count;
        double size = double((line[stretch + 1] - line[stretch]).Length());
        while (walked + size < target && stretch + 2 < line.size()) {
            walked += size;
            ++stretch;
            size = double((line[stretch + 1] - line[stretch]).Length());
        }
        places.append(placeAt(line, stretch + (size > 0.0 ? (target - walked) / size : 0.0)));
    }
    places.append(line.last());
    return places;
}

// The mean about place i, by a bell curve of the width given in places. Near the end of an open
// line the bell narrows, so that neither side pulls more than the other.
Vector bellMean(const QVector<Vector> &line, bool closed, int i, double width)
{
    const int count = line.size() - 1;
    const int room = closed ? count / 2 : std::min(i, count - i);
    const double narrowed = std::min(width, room / 2.0);
    const int reach = std::min(room, int(std::ceil(2.0 * narrowed)));
    Vector sum = line[i];
    double weights = 1.0;
    for (int k = 1; k <= reach; ++k) {
        const double weight = std::exp(-0.5 * k * k / (narrowed * narrowed));
        const Vector before = line[closed ? (i - k + count) % count : i - k];
        const Vector after = line[closed ? (i + k) % count : i + k];
        sum += (before + after) * float(weight);
        weights += 2.0 * weight;
    }
    return sum / float(weights);
}

} // namespace

QVector<QVector<Vector>> followSurface(const QVector<Vector> &places, float step,
                                       const SurfaceLocator &surface)
{
    return SurfaceFollower(step, surface).lines(places);
}

QVector<Vector> smoothedAlong(const QVector<Vector> &line, bool closed, float width, float step,
                              const SurfaceLocator &surface)
{
    if (line.size() < 2)
        return line;
    const QVector<Vector> even = evenlyAlong(line, step);
    const int last = even.size() - 1;
    QVector<Vector> smooth = even;
    for (int i = closed ? 0 : 1; i < last; ++i) {
        const Vector mean = bellMean(even, closed, i, double(width) / double(step));
        smooth[i] = onSurface(surface, mean).position;
    }
    if (closed)
        smooth[last] = smooth[0];
    return smooth;
}

} // namespace orvane
