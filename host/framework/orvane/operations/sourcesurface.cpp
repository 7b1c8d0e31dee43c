// SPDX-License-Identifier: MIT
#include <orvane/operations/sourcesurface.h>

#include <orvane/geometry/mesh.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane {

namespace {

const float RoundingFraction = 1e-6f; // of the largest coordinate: some eight steps between floats

// Of the vertices that faces use: a stray one far away must not blur the surface.
float largestCoordinate(const Mesh &mesh)
{
    float largest = 0.0f;
    for (int vertex : mesh.Corners()) {
        const Vector p = mesh.WorldVertexPosition(vertex);
        if (p.IsFinite())
            largest = std::max({largest, std::abs(p.x), std::abs(p.y), std::abs(p.z)});
    }
    return largest;
}

} // namespace

SourceSurface::SourceSurface(const Mesh &source)
    : m_locator(source.Locator()), m_rounding(RoundingFraction * largestCoordinate(source))
{}

SurfacePlace SourceSurface::Closest(const Vector &place) const
{
    const SurfacePoint point =
        m_locator.ClosestPoint(place, std::numeric_limits<float>::infinity());
    if (!point.IsOnValidFace())
        return {place, Vector(), false};
    const Vector &found = point.WorldPosition();
    const bool lies = (found - place).Length() <= m_rounding;
    return {lies ? place : found, point.WorldNormal(), true};
}

std::vector<SurfacePlace> placesOn(const SourceSurface &surface, const Mesh &mesh)
{
    std::vector<SurfacePlace> places;
    places.reserve(size_t(mesh.VertexCount()));
    for (int v = 0; v < mesh.VertexCount(); ++v)
        places.push_back(surface.Closest(mesh.WorldVertexPosition(v)));
    return places;
}

} // namespace orvane
