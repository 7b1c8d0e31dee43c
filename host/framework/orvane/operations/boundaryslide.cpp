// SPDX-License-Identifier: MIT
#include <orvane/operations/boundaryslide.h>

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

// Between the turns of a hexagon and an octagon: an opening of eight edges is round, one of six
// or four has corners.
const float CornerCosine = 0.642788f; // of 50 degrees

} // namespace

BoundarySlide::BoundarySlide(const QVector<MeshEdge> &edges, const QVector<Vector> &positions)
    : m_openEdgesAt(positions.size(), 0), m_firstOpen(positions.size() + 1, 0)
{
    for (const MeshEdge &edge : edges) {
        if (edge.polygons != 1)
            continue;
        m_open.append(edge);
        ++m_openEdgesAt[edge.a];
        ++m_openEdgesAt[edge.b];
    }
    for (int v = 0; v < positions.size(); ++v)
        m_firstOpen[v + 1] = m_firstOpen[v] + m_openEdgesAt[v];
    m_openOf.resize(2 * m_open.size());
    QVector<int> next = m_firstOpen;
    for (int e = 0; e < m_open.size(); ++e) {
        m_openOf[next[m_open[e].a]++] = e;
        m_openOf[next[m_open[e].b]++] = e;
    }
    for (int v = 0; v < positions.size(); ++v)
        m_corner.append(IsOnBoundary(v) && isCorner(v, positions));

    m_followed.fill(false, m_open.size());
    for (bool fromCorners : {true, false}) { // what is left then are loops without a corner
        for (int v = 0; v < positions.size(); ++v) {
            for (int i = m_firstOpen[v]; i < m_firstOpen[v + 1]; ++i) {
                if (m_corner[v] == fromCorners && !m_followed[m_openOf[i]])
                    follow(v, m_openOf[i], positions);
            }
        }
    }
}

bool BoundarySlide::isCorner(int vertex, const QVector<Vector> &positions) const
{
    if (m_openEdgesAt[vertex] != 2)
        return true;
    const int *own = m_openOf.constData() + m_firstOpen[vertex];
    const Vector &here = positions[vertex];
    const Vector in = Normalized(here - positions[otherEnd(own[0], vertex)]);
    const Vector out = Normalized(positions[otherEnd(own[1], vertex)] - here);
    return !(Dot(in, out) >= CornerCosine);
}

int BoundarySlide::otherEnd(int edge, int vertex) const
{
    return m_open[edge].a == vertex ? m_open[edge].b : m_open[edge].a;
}

void BoundarySlide::follow(int vertex, int edge, const QVector<Vector> &positions)
{
    const int start = vertex;
    Chain chain;
    const auto append = [&chain, &positions](int v) {
        const Vector &place = positions[v];
        const double step =
            chain.places.isEmpty() ? 0.0 : double((place - chain.places.last()).Length());
        chain.lengths.append(chain.lengths.isEmpty() ? 0.0 : chain.lengths.last() + step);
        chain.places.append(place);
        chain.vertices.append(v);
    };
    append(vertex);
    while (true) {
        m_followed[edge] = true;
        vertex = otherEnd(edge, vertex);
        append(vertex);
        if (m_corner[vertex] || vertex == start)
            break;
        const int *own = m_openOf.constData() + m_firstOpen[vertex];
        edge = own[0] == edge ? own[1] : own[0];
    }
    chain.beads = chain.lengths;
    chain.loop = !m_corner[start];
    m_chains.append(chain);
}

void BoundarySlide::Step(double fraction, QVector<Vector> &positions)
{
    for (Chain &chain : m_chains) {
        const QVector<double> before = chain.beads;
        const int last = before.size() - 1;
        const auto slide = [&](int i, double previous) {
            chain.beads[i] += fraction * ((previous + before[i + 1]) / 2 - before[i]);
            positions[chain.vertices[i]] = placeAt(chain, chain.beads[i]);
        };
        if (chain.loop) {
            slide(0, before[last - 1] - chain.lengths[last]);
            chain.beads[last] = chain.beads[0] + chain.lengths[last];
        }
        for (int i = 1; i < last; ++i)
            slide(i, before[i - 1]);
    }
}

Vector BoundarySlide::placeAt(const Chain &chain, double length)
{
    const double whole = chain.lengths.last();
    if (chain.loop && whole > 0.0)
        length -= whole * std::floor(length / whole);
    const auto above = std::upper_bound(chain.lengths.cbegin(), chain.lengths.cend(), length);
    const int last = chain.lengths.size() - 1;
    const int next = std::clamp(int(above - chain.lengths.cbegin()), 1, last);
    const double from = chain.lengths[next - 1];
    const double stretch = chain.lengths[next] - from;
    const float share = stretch > 0.0 ? float((length - from) / stretch) : 0.0f;
    return chain.places[next - 1] + (chain.places[next] - chain.places[next - 1]) * share;
}

} // namespace orvane
