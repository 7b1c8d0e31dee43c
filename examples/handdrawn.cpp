// SPDX-License-Identifier: MIT
#include "examples/handdrawn.h"

#include "examples/headshape.h"

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const float Waver = 0.0035f;     // scene units
const float WaverLength = 0.35f; // scene units
const int RoundingPasses = 4;

// A slow wave of its own for each seed, between -1 and 1.
float wave(float along, int seed)
{
    const float phase = 2.4f * float(seed);
    const float t = along / WaverLength;
    return 0.6f * std::sin(6.28f * t + phase) + 0.4f * std::sin(2.9f * t + 1.7f * phase);
}

// Takes the corners out of a stroke, but for its ends.
void roundOff(Stroke &stroke)
{
    std::vector<Vector> &points = stroke.points;
    const std::vector<Vector> before = points;
    const size_t count = points.size();
    for (size_t i = 0; i < count; ++i) {
        if (!stroke.closed && (i == 0 || i + 1 == count))
            continue;
        const Vector &previous = before[(i + count - 1) % count];
        const Vector &next = before[(i + 1) % count];
        points[i] = headshape::onSurface(before[i] * 0.5f + (previous + next) * 0.25f);
    }
}

Stroke resampled(const Stroke &stroke, float spacing)
{
    const float length = lengthOf(stroke);
    const int segments = std::max(stroke.closed ? 3 : 1, int(length / spacing));
    const float step = length / float(segments);
    Stroke result;
    result.closed = stroke.closed;
    const size_t count = stroke.points.size();
    float travelled = 0.0f;
    int due = 0;
    for (size_t i = 0; i + (stroke.closed ? 0 : 1) < count && due < segments; ++i) {
        const Vector &a = stroke.points[i];
        const Vector &b = stroke.points[(i + 1) % count];
        const float piece = (b - a).Length();
        while (due < segments && float(due) * step <= travelled + piece) {
            const float t = piece > 0.0f ? (float(due) * step - travelled) / piece : 0.0f;
            result.points.push_back(headshape::onSurface(a + (b - a) * t));
            ++due;
        }
        travelled += piece;
    }
    if (!stroke.closed)
        result.points.push_back(stroke.points.back());
    return result;
}

} // namespace

float lengthOf(const Stroke &stroke)
{
    float length = 0.0f;
    for (size_t i = 0; i + 1 < stroke.points.size(); ++i)
        length += (stroke.points[i + 1] - stroke.points[i]).Length();
    if (stroke.closed)
        length += (stroke.points.front() - stroke.points.back()).Length();
    return length;
}

Stroke handDrawn(const Stroke &stroke, float spacing, int seed)
{
    Stroke result = resampled(stroke, spacing);
    for (int pass = 0; pass < RoundingPasses; ++pass)
        roundOff(result);
    const std::vector<Vector> even = result.points;
    const size_t count = even.size();
    for (size_t i = 0; i < count; ++i) {
        if (!result.closed && (i == 0 || i + 1 == count))
            continue;
        const Vector along = even[(i + 1) % count] - even[(i + count - 1) % count];
        const Vector aside = Normalized(headshape::normal(even[i]) & along);
        result.points[i] =
            headshape::onSurface(even[i] + aside * (Waver * wave(float(i) * spacing, seed)));
    }
    return result;
}
