// SPDX-License-Identifier: MIT
#include "examples/rings.h"

#include "examples/headshape.h"

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const float FarReach = 100.0f;
const float ViewDistance = 2.0f; // from which a ring is seen, scene units
const float TurnReach = 1.07f;   // where a stroke turns towards the centre
const float Step = 0.04f;        // of reach, along a stroke that goes inwards
const int LoopPoints = 160;
const float FullTurn = 6.2831853f; // radians
const float PastLoop = 0.07f;      // of reach
const float ShortOfLoop = 0.006f;  // of reach
const int ShortEvery = 3;

const Ring *ringAt(const Vector &p, const std::vector<Ring> &rings)
{
    for (const Ring &ring : rings) {
        if (ring.reach(p) < TurnReach)
            return &ring;
    }
    return nullptr;
}

// Starts a closed stroke inside a ring, so that no part of it runs across the seam.
void startInsideARing(Stroke &stroke, const std::vector<Ring> &rings)
{
    if (!stroke.closed)
        return;
    const auto inside = std::find_if(stroke.points.begin(), stroke.points.end(),
                                     [&](const Vector &p) { return ringAt(p, rings); });
    if (inside == stroke.points.end())
        return;
    std::rotate(stroke.points.begin(), inside, stroke.points.end());
    stroke.closed = false;
}

bool stopsShort(const Ring &ring, float angle)
{
    return ring.loops.size() == 1 && int(angle / FullTurn * 24.0f + 24.0f) % ShortEvery == 0;
}

// From where the stroke turned, inwards.
std::vector<Vector> inwards(const Vector &from, const Ring &ring)
{
    const float angle = ring.angleOf(from);
    const float last = ring.loops.back();
    const float end = stopsShort(ring, angle) ? last + ShortOfLoop : last - PastLoop;
    std::vector<Vector> points;
    for (float reach = TurnReach - Step; reach > end; reach -= Step)
        points.push_back(ring.place(angle, reach));
    points.push_back(ring.place(angle, end));
    return points;
}

} // namespace

float Ring::reach(const Vector &p) const
{
    const Vector offset = p - centre;
    if (Dot(offset, out) < -0.25f)
        return FarReach;
    return std::hypot(Dot(offset, right) / radiusRight, Dot(offset, up) / radiusUp);
}

float Ring::angleOf(const Vector &p) const
{
    const Vector offset = p - centre;
    return std::atan2(Dot(offset, up) / radiusUp, Dot(offset, right) / radiusRight);
}

Vector Ring::place(float angle, float reach) const
{
    const Vector offset =
        right * (std::cos(angle) * radiusRight * reach) + up * (std::sin(angle) * radiusUp * reach);
    return headshape::castRay(centre + offset + out * ViewDistance, -out);
}

Stroke Ring::loop(float reach) const
{
    Stroke stroke;
    stroke.closed = true;
    for (int i = 0; i < LoopPoints; ++i)
        stroke.points.push_back(place(FullTurn * float(i) / LoopPoints, reach));
    return stroke;
}

std::vector<Stroke> bentAtRings(const Stroke &stroke, const std::vector<Ring> &rings)
{
    Stroke whole = stroke;
    startInsideARing(whole, rings);
    std::vector<Stroke> parts;
    const Ring *before = nullptr;
    bool open = false;
    for (const Vector &p : whole.points) {
        const Ring *ring = ringAt(p, rings);
        if (ring && open) {
            const std::vector<Vector> end = inwards(parts.back().points.back(), *ring);
            parts.back().points.insert(parts.back().points.end(), end.begin(), end.end());
        }
        if (!ring && !open) {
            parts.emplace_back();
            if (before) {
                parts.back().points = inwards(p, *before);
                std::reverse(parts.back().points.begin(), parts.back().points.end());
            }
        }
        open = !ring;
        if (open)
            parts.back().points.push_back(p);
        before = ring;
    }
    // A stroke that began inside a ring ends before it again.
    if (open && whole.closed != stroke.closed) {
        const Ring *ring = ringAt(whole.points.front(), rings);
        const std::vector<Vector> end = inwards(parts.back().points.back(), *ring);
        parts.back().points.insert(parts.back().points.end(), end.begin(), end.end());
    }
    if (parts.size() == 1)
        parts.front().closed = whole.closed;
    return parts;
}
