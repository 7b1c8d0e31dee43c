// SPDX-License-Identifier: MIT
#include <orvane/operations/relaxation.h>

#include <orvane/geometry/mesh.h>
#include <orvane/operations/boundaryslide.h>

namespace orvane {

namespace {

const float LargestShare = 0.5f; // of the way to rest, at full strength
// Of the mean edge length at a vertex: edges pull as springs of that length would, so that short
// ones push. With none, the ring around a small opening shrinks onto it; at 1 quads turn skew.
const float RestShare = 0.5f;
const float SmallestStride = 0.2f; // of a step that would end on the far side

QVector<Vector> positionsOf(const std::vector<SurfacePlace> &places)
{
    QVector<Vector> positions;
    positions.reserve(int(places.size()));
    for (const SurfacePlace &place : places)
        positions.append(place.position);
    return positions;
}

class Relaxation
{
public:
    Relaxation(const Mesh &mesh, const SourceSurface &surface)
        : m_surface(surface),
          m_edges(edgesOf(polygonsOf(mesh), mesh.VertexCount())),
          m_places(placesOn(surface, mesh)),
          m_targets(positionsOf(m_places)),
          m_boundary(m_edges, m_targets)
    {}

    const std::vector<SurfacePlace> &places() const { return m_places; }
    void step(float share);

private:
    template <typename Visit>
    void forEachWay(Visit visit) const;
    void aimInside(float share);
    void walk(SurfacePlace &place, const Vector &target) const;

    const SourceSurface &m_surface;
    QVector<MeshEdge> m_edges;
    std::vector<SurfacePlace> m_places; // by vertex
    QVector<Vector> m_targets;          // parallel to m_places
    BoundarySlide m_boundary;
};

void Relaxation::step(float share)
{
    aimInside(share);
    m_boundary.Step(double(share), m_targets);
    for (int v = 0; v < m_targets.size(); ++v)
        walk(m_places[size_t(v)], m_targets[v]);
}

// Calls visit with a vertex and the way to a neighbour, for both ends of each edge.
template <typename Visit>
void Relaxation::forEachWay(Visit visit) const
{
    for (const MeshEdge &edge : m_edges) {
        const SurfacePlace &a = m_places[size_t(edge.a)];
        const SurfacePlace &b = m_places[size_t(edge.b)];
        if (!a.isOnSurface || !b.isOnSurface)
            continue;
        visit(edge.a, b.position - a.position);
        visit(edge.b, a.position - b.position);
    }
}

void Relaxation::aimInside(float share)
{
    QVector<int> counts(m_targets.size(), 0);
    QVector<float> lengths(m_targets.size(), 0.0f);
    forEachWay([&](int v, const Vector &way) {
        ++counts[v];
        lengths[v] += way.Length();
    });
    QVector<Vector> sums(m_targets.size());
    forEachWay([&](int v, const Vector &way) {
        sums[v] += way - Normalized(way) * (RestShare * lengths[v] / float(counts[v]));
    });
    for (int v = 0; v < m_targets.size(); ++v) {
        if (counts[v] == 0 || m_boundary.IsOnBoundary(v))
            continue;
        const SurfacePlace &place = m_places[size_t(v)];
        const Vector middle = sums[v] / float(counts[v]);
        const Vector along = middle - place.normal * Dot(middle, place.normal);
        m_targets[v] = place.position + along * share;
    }
}

void Relaxation::walk(SurfacePlace &place, const Vector &target) const
{
    if (!place.isOnSurface || target == place.position)
        return;
    for (float stride = 1.0f; stride > SmallestStride; stride /= 2) {
        const SurfacePlace next =
            m_surface.Closest(place.position + (target - place.position) * stride);
        if (next.isOnSurface && Dot(next.normal, place.normal) >= 0.0f) {
            place = next;
            return;
        }
    }
}

} // namespace

std::vector<SurfacePlace> relaxedPlaces(const Mesh &mesh, const SourceSurface &surface, int steps,
                                        float strength)
{
    Relaxation relaxation(mesh, surface);
    for (int i = 0; i < steps; ++i)
        relaxation.step(LargestShare * strength);
    return relaxation.places();
}

} // namespace orvane
