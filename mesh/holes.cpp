// SPDX-License-Identifier: MIT
#include "mesh/holes.h"

#include "mesh/directededges.h"
#include "mesh/meshbuilder.h"

using orvane::Vector;

namespace {

// The cycle without its loose ends, where it runs out along an edge and straight back.
QVector<int> withoutLooseEnds(const int *cycle, int count)
{
    QVector<int> ring;
    for (int i = 0; i < count; ++i) {
        ring.append(cycle[i]);
        while (ring.size() >= 3 && ring[ring.size() - 1] == ring[ring.size() - 3])
            ring.resize(ring.size() - 2);
    }
    int first = 0;
    int last = ring.size() - 1;
    // What is left may still run out and back across the seam where the cycle was cut open.
    while (last - first >= 2) {
        if (ring[first + 1] == ring[last])
            ++first, --last;
        else if (ring[first] == ring[last - 1])
            last -= 2;
        else
            break;
    }
    return ring.mid(first, last - first + 1);
}

// Does the ring run counter-clockwise about its normals?  Newell's area vector.
bool isCell(const QVector<int> &ring, const MeshBuilder &builder)
{
    Vector area;
    Vector normal;
    const Vector origin = builder.positions[ring.first()];
    for (int i = 0; i < ring.size(); ++i) {
        const int next = ring[i + 1 == ring.size() ? 0 : i + 1];
        area += (builder.positions[ring[i]] - origin) & (builder.positions[next] - origin);
        normal += builder.normals[ring[i]];
    }
    return Dot(area, normal) > 0.0f;
}

} // namespace

HoleCounts countHoles(const DirectedEdges &edges, const MeshBuilder &builder, int maxEdges)
{
    HoleCounts holes;
    for (int run = 0; run < edges.runCount(); ++run) {
        const int first = edges.runStart(run);
        const int end = edges.runEnd(run);
        if (edges.used.hasAny(first, end))
            continue;
        const QVector<int> ring = withoutLooseEnds(edges.vertices() + first, end - first);
        if (ring.size() < 3 || !isCell(ring, builder))
            continue;
        if (ring.size() > maxEdges)
            ++holes.overLimit;
        else if (ring.size() < end - first)
            ++holes.dangling;
        else
            ++holes.unclosed;
    }
    return holes;
}
