// SPDX-License-Identifier: MIT
#include "host/desktop/drawing/curvemeasure.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

PlaceOnLine nearestOnStretch(const QVector<Vector> &line, int stretch, const Vector &to)
{
    const Vector from = line[stretch];
    const Vector along = line[qMin(stretch + 1, line.size() - 1)] - from;
    const float square = along.LengthSquared();
    const float raw = square > 0.0f ? Dot(to - from, along) / square : 0.0f;
    const float fraction = std::clamp(raw, 0.0f, 1.0f);
    const Vector place = fraction == 1.0f ? from + along : from + along * fraction;
    return {stretch, fraction, place, (to - place).Length()};
}

Vector directionOf(const QVector<Vector> &line, int stretch)
{
    return Normalized(line[stretch + 1] - line[stretch]);
}

} // namespace

double lengthOf(const QVector<Vector> &line)
{
    return lengthUpTo(line, line.size());
}

PlaceOnLine nearestOnLine(const QVector<Vector> &line, const Vector &to)
{
    PlaceOnLine best;
    const int stretches = line.size() == 1 ? 1 : line.size() - 1;
    for (int i = 0; i < stretches; ++i) {
        const PlaceOnLine place = nearestOnStretch(line, i, to);
        if (best.stretch < 0 || place.distance < best.distance)
            best = place;
    }
    return best;
}

Vector placeAt(const QVector<Vector> &line, double parameter)
{
    if (line.isEmpty())
        return {};
    const double inside = std::clamp(parameter, 0.0, double(line.size() - 1));
    const int stretch = int(inside);
    const float fraction = float(inside - stretch);
    if (fraction == 0.0f)
        return line[stretch];
    return line[stretch] + (line[stretch + 1] - line[stretch]) * fraction;
}

Vector tangentAt(const QVector<Vector> &line, double parameter)
{
    const int stretches = line.size() - 1;
    if (stretches < 1)
        return {};
    const double inside = std::clamp(parameter, 0.0, double(stretches));
    const int stretch = qMin(int(inside), stretches - 1);
    const bool atCorner = inside == double(stretch) && stretch > 0;
    if (!atCorner)
        return directionOf(line, stretch);
    return Normalized(directionOf(line, stretch - 1) + directionOf(line, stretch));
}

double lengthUpTo(const QVector<Vector> &line, double parameter)
{
    double length = 0.0;
    for (int i = 0; i + 1 < line.size() && double(i) < parameter; ++i) {
        const double part = std::min(1.0, parameter - i);
        length += part * double((line[i + 1] - line[i]).Length());
    }
    return length;
}

QVector<Vector> partOf(const QVector<Vector> &line, double first, double last)
{
    QVector<Vector> part = {placeAt(line, first)};
    const auto append = [&part](const Vector &place) {
        if (place != part.last())
            part.append(place);
    };
    for (int i = int(std::floor(first)) + 1; i < last && i < line.size(); ++i)
        append(line[i]);
    append(placeAt(line, last));
    return part;
}

} // namespace orvane
