// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/surfacepoint.h>

#include <QScopedPointer>

namespace orvane {

class Mesh;

//! Finds points on a mesh: the closest to a place, the first along a ray. Built once, in world
//! space; a mesh that changes or moves needs a new one, so ask Mesh::Locator. Runs out of memory
//! as Qt does. Built on Intel's Embree.
class ORVANE_EXPORT SurfaceLocator
{
public:
    explicit SurfaceLocator(const Mesh &mesh);
    ~SurfaceLocator();
    SurfaceLocator(const SurfaceLocator &) = delete;
    SurfaceLocator &operator=(const SurfaceLocator &) = delete;

    //! The surface point closest to a place, in world space; of equally close faces the lowest.
    //! Bound to none when there is none within maxDistance, or the place is not finite.
    SurfacePoint ClosestPoint(const Vector &place, float maxDistance) const;
    //! The first surface point that a ray meets from either side; bound to none when it misses.
    SurfacePoint Pick(const Vector &origin, const Vector &direction) const;

private:
    struct Scene;

    const Mesh &m_mesh;
    QScopedPointer<Scene> m_scene;
};

} // namespace orvane
