// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacelocator.h>

#include <vector>

namespace orvane {

class Mesh;

//! A place in world space, put onto a surface where there is one.
struct SurfacePlace
{
    Vector position;
    Vector normal; // of the surface there; zero off any surface and where it has none
    bool isOnSurface = false;
};

//! The surface that vertices of other meshes are put onto. The source is a mesh of the scene that
//! neither changes nor moves while this is in use.
class ORVANE_EXPORT SourceSurface
{
public:
    explicit SourceSurface(const Mesh &source);

    //! The place on the surface that is closest. A place that lies on it but for rounding stays to
    //! the bit; so does one that is not finite or finds no surface, and it is not on the surface.
    SurfacePlace Closest(const Vector &place) const;

private:
    const SurfaceLocator &m_locator; // the mesh's
    float m_rounding;                // scene units; no farther off the surface is on it
};

//! Every vertex of the mesh, put onto the surface.
ORVANE_EXPORT std::vector<SurfacePlace> placesOn(const SourceSurface &surface, const Mesh &mesh);

} // namespace orvane
